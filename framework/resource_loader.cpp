#include "framework/resource_loader.h"

#include "resources/dialogs.h"
#include "resources/images.h"
#include "resources/menus.h"

namespace orvane {

namespace {

constexpr Colour kDialogBackground = Rgb(230, 242, 255);
constexpr Colour kDialogText = Rgb(0, 39, 83);

std::shared_ptr<const Image> LoadImage(Device& device, const ImageResource& resource) {
  return device.LoadImage({resource.size, resource.png});
}

std::vector<MenuItem> ItemsFrom(std::span<const MenuEntry> entries) {
  std::vector<MenuItem> items;
  items.reserve(entries.size());
  for (const MenuEntry& entry : entries) {
    MenuItem item;
    item.id = entry.command;
    item.label = Text(entry.label);
    item.separator = entry.kind == MenuEntryKind::kSeparator;
    if (entry.kind == MenuEntryKind::kSubMenu) item.submenu = ItemsFrom(entry.Entries());
    items.push_back(std::move(item));
  }
  return items;
}

ButtonStyle StyleOf(MenuBarEntryKind kind) {
  switch (kind) {
    case MenuBarEntryKind::kMenu:
      return ButtonStyle::kMenu;
    case MenuBarEntryKind::kSeparator:
      return ButtonStyle::kSeparator;
    case MenuBarEntryKind::kButton:
      return ButtonStyle::kPush;
  }
  return ButtonStyle::kPush;
}

Align AlignOf(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::kLeft:
      return Align::kLeft;
    case TextAlignment::kCentre:
      return Align::kCentre;
    case TextAlignment::kRight:
      return Align::kRight;
  }
  return Align::kLeft;
}

}  // namespace

std::shared_ptr<const Image> LoadResourceImage(Device& device, int imageId) {
  const ImageResource* resource = FindImage(imageId);
  return resource ? LoadImage(device, *resource) : nullptr;
}

std::vector<std::shared_ptr<const Image>> LoadResourceStrip(Device& device, int stripId) {
  std::vector<std::shared_ptr<const Image>> cells;
  if (const ImageStrip* strip = FindStrip(stripId)) {
    cells.reserve(strip->cells.size());
    for (const ImageResource& cell : strip->cells) cells.push_back(LoadImage(device, cell));
  }
  return cells;
}

Menu LoadResourceMenu(int menuId) {
  const MenuResource* resource = FindMenu(menuId);
  return resource ? Menu(ItemsFrom(resource->entries)) : Menu();
}

std::vector<BarButton> LoadResourceBar(int barId) {
  std::vector<BarButton> buttons;
  const MenuBarResource* resource = FindMenuBar(barId);
  if (!resource) return buttons;
  const Menu menu = LoadResourceMenu(resource->menuId);
  for (const MenuBarEntry& entry : resource->entries) {
    BarButton button;
    button.id = entry.command;
    button.style = StyleOf(entry.kind);
    button.label = Text(entry.label);
    if (entry.subMenu >= 0 && entry.subMenu < menu.Count()) {
      button.menu = Menu(menu.Items()[static_cast<std::size_t>(entry.subMenu)].submenu);
    }
    buttons.push_back(std::move(button));
  }
  return buttons;
}

std::optional<DialogTemplate> LoadResourceDialog(Device& device, int dialogId, std::string name) {
  const DialogResource* resource = FindDialog(dialogId);
  if (!resource) return std::nullopt;
  DialogTemplate dialog;
  dialog.name = std::move(name);
  dialog.rect = resource->rect;
  dialog.background = kDialogBackground;
  for (const DialogText& text : resource->texts) {
    dialog.labels.push_back({text.rect, Text(text.text), Text(resource->face), text.pointSize, text.bold,
                             AlignOf(text.alignment), kDialogText});
  }
  for (const DialogImage& image : resource->images) {
    dialog.pictures.push_back({image.rect, LoadResourceImage(device, image.imageId)});
  }
  for (const DialogButton& button : resource->buttons) {
    dialog.buttons.push_back({button.rect, Text(button.label), button.id});
  }
  return dialog;
}

}  // namespace orvane
