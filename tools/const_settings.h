// What the constants screen remembers.
#pragma once

#include <array>
#include <cstdint>

namespace orvane {

class ZelRegistry;

// Name, symbol, value and units, in this order.
inline constexpr std::size_t kConstColumns = 4;

struct ConstColumn {
  bool visible = true;
  bool autoSize = true;
  int width = 10;  // logical pixels; of an automatic column the last one
};

struct ConstSettings {
  std::int32_t category = 0;  // the one that shows, perhaps none that the file has
  bool showTitle = true;
  // The names keep their width, so that the values stay in sight beside long ones.
  std::array<ConstColumn, kConstColumns> columns = {ConstColumn{true, false, 100}, {}, {}, {}};
};

// What is missing in the store, or of another kind there, has its default.
ConstSettings ReadConstSettings(ZelRegistry& registry);
void WriteConstSettings(ZelRegistry& registry, const ConstSettings& settings);

}  // namespace orvane
