#include "tools/const_settings.h"

#include "data/zel_registry.h"

namespace orvane {

namespace {

constexpr TextView kCategory = u"wnd_const.curCateg";
constexpr TextView kShowTitle = u"wnd_const.ShowTitle";

Text ColumnName(std::size_t column, TextView field) {
  return WithNumber(u"wnd_const.Col[%d].", static_cast<int>(column)).append(field);
}

}  // namespace

ConstSettings ReadConstSettings(ZelRegistry& registry) {
  ConstSettings settings;
  registry.Open();
  settings.category = registry.ReadLong(kCategory, settings.category);
  settings.showTitle = registry.ReadBool(kShowTitle, settings.showTitle);
  for (std::size_t i = 0; i < kConstColumns; ++i) {
    ConstColumn& column = settings.columns[i];
    column.autoSize = registry.ReadBool(ColumnName(i, u"AutoSize"), column.autoSize);
    column.visible = registry.ReadBool(ColumnName(i, u"Visible"), column.visible);
    column.width = registry.ReadLong(ColumnName(i, u"Width"), column.width);
  }
  registry.Close();
  return settings;
}

void WriteConstSettings(ZelRegistry& registry, const ConstSettings& settings) {
  registry.Open();
  registry.WriteLong(kCategory, settings.category);
  registry.WriteBool(kShowTitle, settings.showTitle);
  for (std::size_t i = 0; i < kConstColumns; ++i) {
    const ConstColumn& column = settings.columns[i];
    registry.WriteBool(ColumnName(i, u"AutoSize"), column.autoSize);
    registry.WriteBool(ColumnName(i, u"Visible"), column.visible);
    registry.WriteLong(ColumnName(i, u"Width"), column.width);
  }
  registry.Close();
}

}  // namespace orvane
