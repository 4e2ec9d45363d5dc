#pragma once

namespace rf {

class Session;

/// The language step of the start. Takes the command line apart (a number, or a number, a blank and the page to show
/// in the room viewer), loads the phrases in the system's language, and shows the viewer when there is a page.
/// Error 13 when the command line's first word is no number, 6 when it does not fit 16 bits.
void subPreLoadingLanguage(Session& session);

} // namespace rf
