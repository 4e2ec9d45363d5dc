#pragma once

#include "automation/object.h"

namespace rf::automation {

/// Objects by the name of their class, such as "Outlook.Application", or by a class id in braces. Names compare
/// without regard to case. Every failure is an `Error`: 429 when no object could be had.
class ClassRegistry {
public:
    virtual ~ClassRegistry() = default;

    /// The object of that class that is running already.
    [[nodiscard]] virtual Object running(TextView className, Where where = Where::current()) = 0;
    /// A new object of that class; its server is started when need be.
    [[nodiscard]] virtual Object create(TextView className, Where where = Where::current()) = 0;
    /// The object that a display name such as "winmgmts:" stands for.
    [[nodiscard]] virtual Object bind(TextView displayName, Where where = Where::current()) = 0;
};

} // namespace rf::automation
