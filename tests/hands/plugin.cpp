#include "hands/hands.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGenericPlugin>

namespace rf::test {

/// What Qt loads into a program that is to be driven; the program itself knows nothing of it.
class HandsPlugin final : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "hands.json")

public:
    QObject* create(const QString& /*key*/, const QString& /*arguments*/) override
    {
        const QString folder = qEnvironmentVariable("RF_HANDS");
        if (folder.isEmpty())
            return nullptr;
        // A second process of a program must not take the place of the first.
        const QString program = QFileInfo{QStringLiteral("/proc/self/exe")}.symLinkTarget();
        return new Hands{QStringLiteral("%1/%2.%3.hands")
                             .arg(folder, QFileInfo{program}.fileName())
                             .arg(QCoreApplication::applicationPid())};
    }
};

} // namespace rf::test

#include "plugin.moc"
