#include "data/settings_document.h"

#include <optional>
#include <utility>

namespace orvane {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

std::string_view Trimmed(std::string_view line) {
  constexpr std::string_view kBlanks = " \t";
  const std::size_t first = line.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return line.substr(first, line.find_last_not_of(kBlanks) - first + 1);
}

// Cuts the first line off `rest`, without its line feed and the carriage returns before it.
std::string_view TakeLine(std::string_view& rest) {
  std::string_view line = rest.substr(0, rest.find('\n'));
  rest.remove_prefix(line.size() < rest.size() ? line.size() + 1 : rest.size());
  while (line.ends_with('\r')) line.remove_suffix(1);
  return line;
}

}  // namespace

SettingsDocument::SettingsDocument(TextView section, std::string_view bytes) : section_(section) {
  while (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  bool inSection = false;
  while (!bytes.empty()) ParseLine(TakeLine(bytes), inSection);
}

void SettingsDocument::ParseLine(std::string_view line, bool& inSection) {
  const auto keep = [&] { lines_.push_back({false, std::string(line), {}}); };
  const std::string_view trimmed = Trimmed(line);
  if (trimmed.starts_with('[') && trimmed.ends_with(']')) {
    inSection = FromUtf8(trimmed.substr(1, trimmed.size() - 2)) == section_;
    keep();
    if (inSection && !hasSection_) {
      hasSection_ = true;
      insertAt_ = lines_.size();
    }
    return;
  }
  if (!inSection || trimmed.empty() || trimmed.front() == ';' || trimmed.front() == '#') return keep();

  std::optional<NamedSetting> setting = ParseSettingLine(trimmed);
  if (!setting) return;
  const auto [place, isNew] = index_.try_emplace(setting->name, lines_.size());
  if (isNew) {
    lines_.push_back({true, {}, std::move(*setting)});
    insertAt_ = lines_.size();
  } else {
    lines_[place->second].setting = std::move(*setting);
  }
}

const SettingValue* SettingsDocument::Find(TextView name) const {
  const auto found = index_.find(name);
  if (found == index_.end()) return nullptr;
  const std::size_t place = found->second;
  return place < lines_.size() ? &lines_[place].setting.value : &added_[place - lines_.size()].value;
}

bool SettingsDocument::Set(TextView name, SettingValue value) {
  const auto [found, isNew] = index_.try_emplace(Text(name), lines_.size() + added_.size());
  if (isNew) {
    added_.push_back({Text(name), std::move(value)});
    return true;
  }
  const std::size_t place = found->second;
  SettingValue& stored =
      place < lines_.size() ? lines_[place].setting.value : added_[place - lines_.size()].value;
  if (stored == value) return false;
  stored = std::move(value);
  return true;
}

std::string SettingsDocument::Bytes() const {
  std::string out;
  const auto put = [&](std::string_view line) { (out += line) += '\n'; };
  const auto putSetting = [&](const NamedSetting& s) { put(FormatSettingLine(s.name, s.value)); };
  const auto putAdded = [&] {
    for (const NamedSetting& setting : added_) putSetting(setting);
  };
  for (std::size_t i = 0; i < lines_.size(); ++i) {
    if (hasSection_ && i == insertAt_) putAdded();
    if (lines_[i].isValue) {
      putSetting(lines_[i].setting);
    } else {
      put(lines_[i].raw);
    }
  }
  if (hasSection_ && insertAt_ == lines_.size()) putAdded();
  if (!hasSection_ && !added_.empty()) {
    if (!lines_.empty()) put("");
    ((out += '[') += ToUtf8(section_)) += "]\n";
    putAdded();
  }
  return out;
}

}  // namespace orvane
