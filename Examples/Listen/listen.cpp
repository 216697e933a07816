// Selects a variant set and prints every notification that comes meanwhile, with its fields:
//
//     listen SCENE SET

#include "qxVariant.h"
#include "qxVariantReader.h"
#include "qxVariants.h"

#include "Files/qxSceneFile.h"
#include "Script/qxScriptRunner.h"
#include "qxController.h"
#include "qxHost.h"
#include "qxMessage.h"

#include <QCoreApplication>
#include <QStringList>
#include <QTextStream>

namespace {

typedef std::vector<std::string> Names;

int fail(const QString &reason, int code = 1)
{
    QTextStream(stderr) << "listen: " << reason << '\n';
    return code;
}

QString textOf(const boost::any &value)
{
    if (const auto *text = boost::any_cast<std::string>(&value))
        return QString::fromStdString(*text);
    const auto *names = boost::any_cast<Names>(&value);
    if (!names)
        return QStringLiteral("an object");
    QStringList texts;
    for (const std::string &name : *names)
        texts += QString::fromStdString(name);
    return texts.join(", ");
}

/// Hears all notifications. With flag 1 views are to follow at once, with 0 they may wait.
void printNotification(const char *name, qxMessage *message, int flag)
{
    QTextStream out(stdout);
    out << name << (flag == 1 ? "" : " (may wait)") << '\n';
    if (!message)
        return;
    for (const qxMessage::Entry &entry : message->entries())
        out << "  " << entry.first.c_str() << " = " << textOf(entry.second) << '\n';
}

/// Hears only "nodeVariantSelected" and knows its field, an object of the registry.
void onNodeVariantSelected(qxMessage &message)
{
    if (const auto *object = message.get<void *>("variant")) {
        const auto *variant = static_cast<const qxVariant *>(*object);
        QTextStream(stdout) << "=> " << variant->name << ": " << variant->onCurrent() << '\n';
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 3)
        return fail("usage: listen SCENE SET", 2);

    qxHost host;
    qxScriptRunner::setAllowed(qxScriptRunner::Nothing); // those of a stranger's file must not run
    qxSceneFile file;
    if (!file.load(arguments[1]))
        return fail(file.errorString());
    const QByteArray document = file.variantsDocument();
    if (!document.isEmpty()) {
        qxVariantReader reader;
        reader.read(document.constData());
        if (!reader.isRead())
            return fail("the scene's variants cannot be read");
    }
    if (!qxVariants::findVariantSet(arguments[2]))
        return fail(QStringLiteral("no set \"%1\"").arg(arguments[2]));

    const int listener = qxController::addListener(printNotification);
    qxController::addCB("nodeVariantSelected", onNodeVariantSelected);
    qxVariants::selectVariantSet(arguments[2].toUtf8().constData(), false);
    qxController::subCB("nodeVariantSelected", onNodeVariantSelected);
    qxController::removeListener(listener);
    return 0;
}
