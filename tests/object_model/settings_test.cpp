#include "object_model/object_model.h"
#include "storage/settings_suite.h"

namespace rf::test {

RF_EVERY_TRANSPORT(SettingsPost);

} // namespace rf::test
