#include "data/memory_settings.h"

#include <utility>

namespace orvane {

bool MemorySettings::OpenKey(TextView path) {
  open_ = &keys_[Text(path)];
  return true;
}

const SettingValue* MemorySettings::Find(TextView name) const {
  if (open_ == nullptr) return nullptr;
  const auto found = open_->find(name);
  return found == open_->end() ? nullptr : &found->second;
}

void MemorySettings::Write(TextView name, SettingValue value) {
  if (open_ != nullptr) open_->insert_or_assign(Text(name), std::move(value));
}

}  // namespace orvane
