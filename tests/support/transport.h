#pragma once

#include "host/application.h"
#include "outlook/application.h"

#include <functional>
#include <memory>
#include <string>

namespace rf::test {

/// A way from the test to the host's objects.
class Transport {
public:
    virtual ~Transport() = default;

    /// The application as a program at the other end sees it.
    [[nodiscard]] virtual outlook::Application connect(const std::shared_ptr<host::Application>& host) = 0;
};

struct TransportKind {
    std::string name;
    /// Nothing where this machine lacks what the way needs; the name then says what.
    std::function<std::unique_ptr<Transport>()> make;
};

/// The host's objects themselves.
class InProcess final : public Transport {
public:
    [[nodiscard]] outlook::Application connect(const std::shared_ptr<host::Application>& host) override
    {
        return outlook::Application{automation::Object{host}};
    }
};

inline TransportKind inProcess()
{
    return {"InProcess", [] { return std::make_unique<InProcess>(); }};
}

} // namespace rf::test
