#include "platform/scripting_factory.h"

#include "diagnostics/pending_error.h"
#include "diagnostics/product.h"

namespace rf {

ScriptingFactory::ScriptingFactory(Trace& trace, automation::ClassRegistry& classes, System& system,
    ui::Toolkit& toolkit, ErrorReporter& reporter, ReportSurroundings& surroundings)
    : trace_(trace)
    , classes_(classes)
    , system_(system)
    , toolkit_(toolkit)
    , reporter_(reporter)
    , surroundings_(surroundings)
{
}

outlook::Dictionary ScriptingFactory::fncCreateDic()
{
    trace_.subTrace(u"Attempting to create a new Scripting.Dictionary object. This component is usually installed with "
                    u"Internet Explorer 4.0 or later");
    return reporter_.handled(u"modScriptingDic.fncCreateDic", [&] {
        PendingError errors;
        auto object = errors.attempt([&] { return classes_.create(outlook::dictionaryClass); });
        if (!object) {
            system_.launch(u"regsvr32 scrrun.dll /s", WindowStyle::Minimized);
            object = classes_.create(outlook::dictionaryClass);
        }
        outlook::Dictionary dictionary{object};
        dictionary.setCompareMode(outlook::CompareMode::Text);
        return dictionary;
    });
}

outlook::Shell ScriptingFactory::fncGetShell()
{
    PendingError errors;
    auto object = errors.attempt([&] { return classes_.create(outlook::shellClass); });
    if (!object) {
        system_.launch(u"regsvr32 wshom.ocx /s", WindowStyle::Minimized);
        object = errors.attempt([&] { return classes_.create(outlook::shellClass); });
    }
    if (!object) {
        const Text message = Text{u"Attempting to create a new Scripting.Dictionary object."} + Text{lineBreak}
            + u"This component is usually installed with Internet Explorer 4.0 or later" + Text{lineBreak}
            + u"Please download the Windows Scripting Runtime from Microsoft Downloads to resolve this issue!";
        toolkit_.showMessage(message, {ui::Buttons::Ok, ui::Icon::Critical}, productCaption);
        surroundings_.subReportEnd();
    }
    return outlook::Shell{object};
}

} // namespace rf
