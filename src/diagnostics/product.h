#pragma once

#include "basic/text.h"

namespace rf {

/// The caption of the program's messages, forms and command bar; the same in every language.
inline constexpr TextView productCaption = u"Roomfold for Outlook Booking Info";

/// The title of the application itself.
inline constexpr TextView programTitle = u"RFBookingInfo";

} // namespace rf
