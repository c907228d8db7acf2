// What the application offers to every window of the program. The application implements it; windows are
// handed it when they are made, so that a test can make windows with a small shell of its own.
#pragma once

#include <cstdint>

#include "framework/bitmap.h"
#include "framework/text_engine.h"
#include "framework/tool_stack.h"
#include "platform/device.h"

namespace orvane {

class ZelRegistry;
struct FontFamily;

class Shell {
 public:
  virtual ~Shell() = default;

  virtual Device& GetDevice() = 0;
  virtual ToolStack& Tools() = 0;
  virtual TextEngine& Engine() = 0;
  virtual ZelRegistry& Settings() = 0;
  // Owner of every message box and parent of every tool; none until it has been made.
  virtual WindowHandle MainWindow() const = 0;

  // The one screen-sized off-screen bitmap, 240 × 320, through which tools paint.
  virtual Bitmap& BackBuffer() = 0;
  virtual const Bitmap& SeparatorBitmap() const = 0;

  // The page that App > Help opens; 0 when the current tool has none.
  virtual void SetHelpTopic(int page) = 0;
  virtual int HelpTopic() const = 0;
  // The window that gets the commands which are not the main window's own.
  virtual void SetCurrentTool(WindowHandle tool) = 0;

  // The current tool's buttons on the main menu bar, from position 3 on. `string` is the index of a label in
  // the bar's strings (−1 for none), `state` and `style` are those of BarButton.
  virtual void AddBarButton(int id, int image, int string, int state, ButtonStyle style) = 0;
  virtual void RemoveAddedButtons() = 0;
  virtual void EnableBarButton(int id, bool enabled) = 0;
  virtual void CheckBarButton(int id, bool checked) = 0;

  // One of the six shared icons (1..6) with its centre at the point; any other number draws nothing.
  virtual void DrawSharedIcon(Canvas& canvas, int centreX, int centreY, int icon) = 0;
  // The strip at the top of a tool: background bitmap at (0, 0), the title in black and centred at y 2, bold
  // when asked. `clearBelow` also fills (0, 23)-(240, 268) with RGB(230, 242, 255).
  virtual void DrawTitleStrip(Canvas& canvas, const FontFamily& family, TextView title, bool clearBelow,
                              bool bold) = 0;

  // One of the seven pop-up menus of resource 106 by its position, live: its marks stay as they are set.
  // Empty when the menus could not be made.
  virtual Menu& PopupMenu(int position) = 0;

  // Message box owned by the main window with the program's caption.
  virtual void Tell(TextView text, MessageIcon icon) = 0;
};

}  // namespace orvane
