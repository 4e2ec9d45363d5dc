#include "host/assistant.h"

#include "host/model.h"

#include <array>

namespace rf::host {

using automation::Arguments;
using automation::LocalMember;
using automation::Variant;

std::span<const LocalMember<Assistant>> Assistant::members()
{
    static constexpr std::array table{
        LocalMember<Assistant>{u"Visible", [](Assistant& self, const Arguments&) -> Variant { return self.visible_; },
            [](Assistant& self, const Arguments& arguments) { self.visible_ = arguments.value().boolean(); }},
        LocalMember<Assistant>{u"DoAlert",
            [](Assistant& self, const Arguments& arguments) -> Variant {
                self.model_->askingPerson();
                return self.model_->windows().alert(
                    arguments[0].text(), arguments[1].text(), arguments[2].integer32(), arguments[3].integer32());
            }},
    };
    return table;
}

} // namespace rf::host
