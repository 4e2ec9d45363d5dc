#include "linux/rfhost/serve.h"

#include "host/application.h"
#include "host/home_page_content.h"
#include "host/installation.h"
#include "host/recurrence.h"
#include "linux/dbus_server.h"
#include "linux/rfhost/home_page.h"
#include "linux/rfhost/unattended_windows.h"
#include "linux/rfhost/windows/qt_windows.h"
#include "outlook/constants.h"
#include "outlook/event_interfaces.h"

#include <QCoreApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <algorithm>
#include <array>
#include <csignal>
#include <ostream>
#include <sys/socket.h>
#include <unistd.h>

namespace rf::native {

namespace {

/// Other processes' changes are heard of within a second; this leaves room for a busy machine.
constexpr std::chrono::milliseconds followInterval{250};

/// Brings the signals that end a program into the event loop.
class EndSignals {
public:
    explicit EndSignals(std::function<void()> end)
    {
        socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends_.data());
        notifier_ = std::make_unique<QSocketNotifier>(ends_[1], QSocketNotifier::Read);
        QObject::connect(notifier_.get(), &QSocketNotifier::activated, [end = std::move(end)] {
            // Whatever stays there to be read would come again and again until the program has ended.
            if (char signalled = 0; read(ends_[1], &signalled, 1) == 1)
                end();
        });
        for (const int signal : {SIGINT, SIGTERM, SIGHUP})
            std::signal(signal, &EndSignals::handle);
    }
    ~EndSignals()
    {
        for (const int signal : {SIGINT, SIGTERM, SIGHUP})
            std::signal(signal, SIG_DFL);
        notifier_.reset();
        close(ends_[0]);
        close(ends_[1]);
    }
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

private:
    static void handle(int)
    {
        // Nothing else is safe in a signal's handler, and one lost byte among several signals does not matter.
        static_cast<void>(write(ends_[0], "", 1) == 1);
    }

    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables): a signal's handler reaches nothing else.
    static inline std::array<int, 2> ends_{-1, -1};
    std::unique_ptr<QSocketNotifier> notifier_;
};

std::optional<host::FolderRecord> roomfoldRoot(const host::Store& store)
{
    const auto folders = store.folders();
    const auto found = std::ranges::find_if(folders, host::hasHomePage);
    return found == folders.end() ? std::nullopt : std::optional{*found};
}

/// The windows of a host, on a screen or without one.
class Windows {
public:
    Windows(const host::CommandContext& context, const ServeOptions& options)
        : unattended_(context.problems, options.acceptAlerts)
    {
        if (!options.windows)
            return;
        onScreen_ = std::make_unique<QtWindows>();
        if (options.acceptAlerts)
            onScreen_->setAnswers(&unattended_);
    }
    [[nodiscard]] host::HostWindows& any()
    {
        if (onScreen_ != nullptr)
            return *onScreen_;
        return unattended_;
    }
    /// Null without a screen.
    [[nodiscard]] QtWindows* onScreen() const { return onScreen_.get(); }

private:
    UnattendedWindows unattended_;
    std::unique_ptr<QtWindows> onScreen_;
};

void follow(host::Model& model, std::ostream& problems)
{
    try {
        model.followChanges();
    } catch (const RuntimeError& error) {
        problems << "rfhost: " << toUtf8(error.description()) << '\n';
    }
}

} // namespace

bool wantsWindows(bool asked)
{
    const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
    // These draw for nobody to see; a test asks for their windows.
    if (asked || platform == QStringLiteral("offscreen") || platform == QStringLiteral("minimal"))
        return asked;
    return !platform.isEmpty() || !qEnvironmentVariableIsEmpty("DISPLAY")
        || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY");
}

int serve(const host::CommandContext& context, const ServeOptions& options)
{
    host::ensureMailbox(context.store, options.user);
    Windows windows{context, options};
    const auto recurrence = host::makeRecurrenceEngine();
    const auto application
        = host::Application::make({context.store, context.regional, context.clock, windows.any(), recurrence.get()},
            {u"11.0.8169", options.user});

    const auto bridge = dbus::Bridge::connect(outlook::allEventInterfaces());
    if (bridge == nullptr) {
        context.problems << "rfhost: there is no session bus (dbus-run-session starts one)\n";
        return 1;
    }
    dbus::Server server{bridge};
    // NOLINTNEXTLINE(performance-no-automatic-move): the lambda only refers to it.
    if (!server.exportClass(outlook::applicationClass, [&] { return application; })) {
        context.problems << "rfhost: another host serves this bus already\n";
        return 1;
    }

    HomePage homePage{*application, options.program};
    application->explorers().setFolderShown([&](const host::FolderRecord& folder) { homePage.folderShown(folder); });
    const auto end = [&] {
        application->quit();
        // Without asking the windows, one of which may have changes that nobody is there to save.
        QCoreApplication::exit();
    };
    if (auto* const shown = windows.onScreen()) {
        shown->setHomePage(&homePage);
        shown->setLastClosed(end);
    }
    const auto first = options.folder.empty() ? roomfoldRoot(context.store)
                                              : std::optional{host::requireFolder(context.store, options.folder)};
    if (first)
        application->explorers()
            .add(std::make_shared<host::Folder>(application->model().shared_from_this(), first->id))
            ->activate();

    const auto followNow = [&] { follow(application->model(), context.problems); };
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&] {
        followNow();
        // Nobody tells of the end of the bus, and without one there is nobody to serve.
        if (!bridge->connection().isConnected())
            QCoreApplication::exit(1);
    });
    timer.start(followInterval);
    // Programs hear of what this host changes at once, behind the call that changed it.
    QTimer ownChanges;
    ownChanges.setSingleShot(true);
    QObject::connect(&ownChanges, &QTimer::timeout, followNow);
    application->model().setChanged([&] { ownChanges.start(0); });
    const EndSignals untilSignal{end};
    context.out << "rfhost serves " << toUtf8(options.user) << " on the session bus." << std::endl;
    const int status = QCoreApplication::exec();
    application->model().setChanged([] {});
    if (auto* const shown = windows.onScreen())
        shown->clear();
    return status;
}

} // namespace rf::native
