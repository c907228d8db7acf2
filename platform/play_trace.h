// Writes what happens in a device as JSON, one line an event.
#pragma once

#include <fstream>
#include <string>

#include "base/colour.h"
#include "platform/trace.h"

namespace orvane {

// {"time":0,"event":"message","window":3,"message":256,"name":"WM_KEYDOWN","w":37,"l":0}
// {"time":0,"event":"cursor","shape":"wait"}
// {"time":0,"event":"bar","call":"add","bar":1,"argument":8820,"value":4}
// {"time":0,"event":"box","caption":"Orvane","text":"...","icon":"error"}
//
// `time` is the host's clock in milliseconds; `name` is left out for a message without a usual one. Addresses
// are never shown, so that equal scripts give equal traces: WM_CREATE has no "l", WM_NOTIFY has the
// notification's "code" and "id" in its place.
class JsonTrace : public TraceSink {
 public:
  // Starts to write into this file, from its beginning, in place of the one before. False when it cannot be
  // written; nothing is written then.
  bool Open(const std::string& path);
  void SetTime(std::int64_t milliseconds) { time_ = milliseconds; }

  void MessageDispatched(WindowHandle window, std::uint32_t message, WParam w, LParam l) override;
  void CursorChanged(bool wait) override;
  void BarCall(std::string_view call, int bar, int commandOrIndex, int value) override;
  void MessageBoxShown(TextView caption, TextView text, MessageIcon icon) override;

 private:
  std::ofstream file_;
  std::int64_t time_ = 0;
};

// "none", "error", "exclamation" or "information", as traces and reports name the icon of a box.
std::string_view IconName(MessageIcon icon);

// Text for JSON: UTF-8, a lone surrogate as U+FFFD, since JSON text has to be well-formed.
std::string JsonText(TextView text);

// RRGGBB in small letters.
std::string HexColour(Colour colour);

}  // namespace orvane
