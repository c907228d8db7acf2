#include "data/zel_registry.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace orvane {

namespace {

constexpr std::size_t kLongSize = 4;
constexpr std::size_t kDoubleSize = 8;
constexpr std::size_t kMostStringBytes = 512;

using DoubleBytes = std::array<std::uint8_t, kDoubleSize>;

// The text that the bytes are, or nothing when they are none.
std::optional<Text> TextOf(std::span<const std::uint8_t> bytes) {
  if (bytes.empty() || bytes.size() % 2 != 0 || bytes.size() > kMostStringBytes) return std::nullopt;
  Text text;
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    text.push_back(static_cast<Char>(bytes[i] | (bytes[i + 1] << 8)));
  }
  if (text.back() == 0) text.pop_back();
  if (text.find(u'\0') != Text::npos) return std::nullopt;
  return text;
}

}  // namespace

void ZelRegistry::Open() {
  if (!open_) open_ = store_.OpenKey(keyPath_);
}

void ZelRegistry::Close() {
  if (open_) store_.CloseKey();
  open_ = false;
}

void ZelRegistry::Write(TextView name, SettingKind kind, std::span<const std::uint8_t> bytes) {
  if (open_) store_.Write(name, {kind, {bytes.begin(), bytes.end()}});
}

void ZelRegistry::WriteLong(TextView name, std::int32_t value) {
  const std::uint32_t bits = static_cast<std::uint32_t>(value);
  std::array<std::uint8_t, kLongSize> bytes{};
  for (std::size_t i = 0; i < kLongSize; ++i) bytes[i] = static_cast<std::uint8_t>(bits >> (8 * i));
  Write(name, SettingKind::kLong, bytes);
}

void ZelRegistry::WriteBool(TextView name, bool value) { WriteLong(name, value ? 1 : 0); }

void ZelRegistry::WriteDouble(TextView name, double value) {
  Write(name, SettingKind::kBinary, std::bit_cast<DoubleBytes>(value));
}

void ZelRegistry::WriteString(TextView name, TextView value) {
  value = value.substr(0, value.find(u'\0'));
  std::vector<std::uint8_t> bytes;
  bytes.reserve((value.size() + 1) * 2);
  for (const Char c : value) {
    bytes.push_back(static_cast<std::uint8_t>(c & 0xFF));
    bytes.push_back(static_cast<std::uint8_t>(c >> 8));
  }
  bytes.insert(bytes.end(), 2, 0);
  Write(name, SettingKind::kString, bytes);
}

void ZelRegistry::WriteBinary(TextView name, std::span<const std::uint8_t> bytes) {
  Write(name, SettingKind::kBinary, bytes);
}

const std::uint8_t* ZelRegistry::FindBytes(TextView name, std::size_t size) const {
  const SettingValue* const value = Find(name);
  return value != nullptr && value->bytes.size() == size ? value->bytes.data() : nullptr;
}

bool ZelRegistry::Exists(TextView name) const {
  const SettingValue* const value = Find(name);
  return value != nullptr && value->bytes.size() <= kLongSize;
}

std::int32_t ZelRegistry::ReadLong(TextView name, std::int32_t defaultValue) const {
  const std::uint8_t* const bytes = FindBytes(name, kLongSize);
  if (bytes == nullptr) return defaultValue;
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < kLongSize; ++i) bits |= static_cast<std::uint32_t>(bytes[i]) << (8 * i);
  return static_cast<std::int32_t>(bits);
}

bool ZelRegistry::ReadBool(TextView name, bool defaultValue) const {
  return ReadLong(name, defaultValue ? 1 : 0) != 0;
}

double ZelRegistry::ReadDouble(TextView name, double defaultValue) const {
  const std::uint8_t* const stored = FindBytes(name, kDoubleSize);
  if (stored == nullptr) return defaultValue;
  DoubleBytes bytes{};
  std::memcpy(bytes.data(), stored, bytes.size());
  return std::bit_cast<double>(bytes);
}

std::int32_t ZelRegistry::ReadString(TextView name, Text& destination, TextView defaultValue) const {
  const SettingValue* const value = Find(name);
  std::optional<Text> text = value == nullptr ? std::nullopt : TextOf(value->bytes);
  if (!text) {
    destination = defaultValue;
    return static_cast<std::int32_t>(defaultValue.size());
  }
  destination = std::move(*text);
  return static_cast<std::int32_t>(value->bytes.size()) - 1;
}

std::int32_t ZelRegistry::ReadBinary(TextView name, std::span<std::uint8_t> buffer) const {
  constexpr std::size_t kMostReported = std::numeric_limits<std::int32_t>::max();
  const SettingValue* const value = Find(name);
  if (value == nullptr) return -1;
  const std::vector<std::uint8_t>& bytes = value->bytes;
  if (buffer.empty()) return static_cast<std::int32_t>(std::min(bytes.size(), kMostReported));
  const std::size_t count = std::min({bytes.size(), buffer.size(), kMostReported});
  std::copy_n(bytes.begin(), count, buffer.begin());
  return static_cast<std::int32_t>(count);
}

}  // namespace orvane
