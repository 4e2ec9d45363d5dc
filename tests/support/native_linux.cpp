#include "linux/system.h"
#include "support/native.h"

namespace rf::test {

std::string_view builtInLanguageTable() { return native::LinuxSystem{{}, {}}.resource(u"CUSTOM", u"LANGUAGE"); }

} // namespace rf::test
