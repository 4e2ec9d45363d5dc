#include "linux/over_dbus.h"
#include "object_model/object_model.h"

#include <QCoreApplication>

namespace rf::test {

namespace {

/// Qt's part of the process: without its program object nothing arrives.
void ensureQt()
{
    static int count = 1;
    static char name[] = "object_model_tests";
    static char* arguments[] = {name, nullptr};
    static const QCoreApplication application{count, arguments};
}

/// A bus once Qt is there.
std::unique_ptr<Transport> overDbus()
{
    ensureQt();
    return std::make_unique<OverDbus>();
}

} // namespace

std::unique_ptr<host::RecurrenceEngine> recurrenceEngine() { return host::makeRecurrenceEngine(); }

std::vector<TransportKind> transports() { return {inProcess(), {"Dbus", overDbus}}; }

} // namespace rf::test
