#include "platform/file_handling.h"

#include "diagnostics/pending_error.h"
#include "diagnostics/product.h"

namespace rf {

namespace {

/// Pages and mail addresses belong to the shell, which knows the programs for them.
bool isForTheShell(TextView target)
{
    const Text start = upper(target.substr(0, 4));
    return start == u"HTTP" || start == u"MAIL";
}

/// A registered browser command holds "%1" where the page goes, or takes it as its last argument.
Text commandLine(const Text& browser, const Text& page)
{
    constexpr TextView placeholder = u"%1";
    if (browser.find(placeholder) != Text::npos)
        return replaceAll(browser, placeholder, page);
    return browser + u" \"" + page + u"\"";
}

} // namespace

FileHandling::FileHandling(Trace& trace, automation::ClassRegistry& classes, System& system, ui::Toolkit& toolkit,
    ErrorReporter& reporter, ScriptingFactory& scripting)
    : trace_(trace)
    , classes_(classes)
    , system_(system)
    , toolkit_(toolkit)
    , reporter_(reporter)
    , scripting_(scripting)
{
}

void FileHandling::subSetupFS()
{
    if (fso_)
        return;
    trace_.subTrace(u"Creating Scripting.FileSystemObject");
    reporter_.handled(
        u"subSetupFS", [&] { fso_ = outlook::FileSystemObject{classes_.create(outlook::fileSystemClass)}; });
}

const outlook::FileSystemObject& FileHandling::fsoShared()
{
    subSetupFS();
    return fso_;
}

Text FileHandling::fncGetTempPath()
{
    const auto& fso = fsoShared();
    trace_.subTrace(u"Finding Temp folder path");
    PendingError errors;
    return errors.attempt([&] { return fso.getSpecialFolder(outlook::SpecialFolder::Temporary).path(); });
}

Text FileHandling::fncSaveTextFile(const Text& text, const Text& fileName)
{
    trace_.subTrace(u"Saving textfile " + fileName);
    const Text name = fileName.find(u'.') == Text::npos ? fileName + u".tmp" : fileName;
    PendingError errors;
    return errors.attempt([&] {
        Text path = fsoShared().buildPath(fncGetTempPath(), name);
        const auto stream = fsoShared().createTextFile(path, true, true);
        stream.write(text);
        stream.close();
        return path;
    });
}

void FileHandling::subPrintFile(const Text& path)
{
    trace_.subTrace(u"Attempting to print the file " + path);
    system_.invokeVerb(u"Print", path);
}

void FileHandling::open(const Text& target)
{
    const auto shell = scripting_.fncGetShell();
    if (!isForTheShell(target)) {
        shell.run(target + u".exe");
        return;
    }
    PendingError errors;
    errors.attempt([&] { shell.run(target); });
    if (!errors.pending())
        return;
    // A system whose shell does not know what to do with a page still has its default browser registered.
    const Text browser = system_.browserCommand();
    if (browser.empty())
        throw RuntimeError{errors.number(), errors.description()};
    system_.launch(commandLine(browser, target), WindowStyle::Normal);
}

void FileHandling::subExecute(const Text& target)
{
    trace_.subTrace(u"Attempting to execute " + target);
    PendingError errors;
    errors.attempt([&] { open(target); });
    if (errors.pending())
        toolkit_.showMessage(errors.description() + Text{lineBreak} + u"modFileHandling.subExecute",
            {ui::Buttons::Ok, ui::Icon::Critical}, productCaption);
}

} // namespace rf
