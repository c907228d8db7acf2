// Settings that live as long as the object: for tests, and for runs that leave nothing behind.
#pragma once

#include <map>

#include "data/settings_store.h"

namespace orvane {

class MemorySettings : public SettingsStore {
 public:
  bool OpenKey(TextView path) override;
  void CloseKey() override { open_ = nullptr; }
  const SettingValue* Find(TextView name) const override;
  void Write(TextView name, SettingValue value) override;

 private:
  using Key = std::map<Text, SettingValue, std::less<>>;

  std::map<Text, Key, std::less<>> keys_;
  Key* open_ = nullptr;  // in keys_
};

}  // namespace orvane
