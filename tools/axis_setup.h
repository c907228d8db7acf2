// What the plot asks of the axis setup, and how the answer comes back.
#pragma once

#include <functional>
#include <optional>

#include "base/text.h"
#include "data/property_address.h"

namespace orvane {

struct AxisRequest {
  bool isXAxis = true;
  Text filter;               // as it is in force
  PropertyAddress property;  // likewise; it may be one that is not offered
  // Takes the filter as typed and the chosen property, none when none is chosen. False when the filter cannot
  // be used, of which the user has been told: the setup stays open then.
  std::function<bool(TextView filter, const std::optional<PropertyAddress>& property)> accept;
};

}  // namespace orvane
