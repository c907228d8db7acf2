#include "platform/host.h"

namespace orvane {

bool Host::SetClipboard(TextView text) {
  clipboard_ = Text(text);
  clipboardHasText_ = true;
  return true;
}

std::optional<Text> Host::GetClipboard() {
  if (!clipboardHasText_) return std::nullopt;
  return clipboard_;
}

}  // namespace orvane
