#include "linux/dbus_error.h"

#include "linux/dbus_value.h"

#include <QDBusError>
#include <new>

namespace rf::native::dbus {

using automation::Error;

namespace {

QDBusMessage reply(const QDBusMessage& call, const RuntimeError& error, TextView source, TextView member)
{
    // The message is for people who watch the bus; texts that it cannot carry are in the arguments behind it.
    QDBusMessage answer = call.createErrorReply(errorName(), QString::fromUtf8(error.what()));
    answer << int{error.number()} << bytesOf(error.description()) << bytesOf(source) << bytesOf(member);
    return answer;
}

} // namespace

Error errorOf(std::int32_t number, TextView member)
{
    return Error{number, {Text{errorDescription(number)}, {}, Text{member}}};
}

bool isToldByCallee(const QDBusMessage& reply)
{
    return reply.errorName() == errorName() && reply.signature() == QLatin1StringView{"siayayay"};
}

Error errorOf(const QDBusMessage& reply, TextView member)
{
    if (!isToldByCallee(reply))
        return errorOf(error_number::serverUnavailable, member);
    const auto told = reply.arguments();
    const auto textAt = [&](qsizetype position) { return textOfBytes(told.at(position).toByteArray()); };
    const Text toldMember = textAt(4);
    return Error{told.at(1).toInt(), {textAt(2), textAt(3), toldMember.empty() ? Text{member} : toldMember}};
}

QDBusMessage errorReply(const QDBusMessage& call)
{
    try {
        throw;
    } catch (const Error& error) {
        return reply(call, error, error.source(), error.member());
    } catch (const RuntimeError& error) {
        return reply(call, error, {}, {});
    } catch (const BadMessage& error) {
        return call.createErrorReply(QDBusError::InvalidArgs, QString::fromUtf8(error.what()));
    } catch (const std::bad_alloc&) {
        return reply(call, errorOf(error_number::outOfMemory), {}, {});
    } catch (...) {
        return reply(call, errorOf(error_number::internalError), {}, {});
    }
}

} // namespace rf::native::dbus
