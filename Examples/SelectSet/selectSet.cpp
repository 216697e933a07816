// Selects a variant set and shows what the scene looks like then; saves it when OUT is given:
//
//     select-set SCENE SET [OUT]

#include "qxVariantKinds.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Files/qxSceneFile.h"
#include "Script/qxScriptRunner.h"
#include "qxHost.h"

#include <QCoreApplication>
#include <QTextStream>

namespace {

int fail(const QString &reason, int code = 1)
{
    QTextStream(stderr) << "select-set: " << reason << '\n';
    return code;
}

QString knownSets()
{
    QStringList names;
    for (const qxVariantSet *set : qxVariants::_variantSets)
        names += set->name;
    return names.isEmpty() ? QStringLiteral("none") : names.join(", ");
}

/// Variants do not remember a state: each looks into the scene.
void printStates()
{
    QTextStream out(stdout);
    qxVariantKinds::visit([&](const qxVariantKind &kind, const qxVariant &variant) {
        out << kind.word << ' ' << variant.name << ": " << variant.shown().visibleState() << '\n';
    });
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() < 3 || arguments.size() > 4)
        return fail("usage: select-set SCENE SET [OUT]", 2);

    qxHost host;
    // Sets may have scripts with all rights of the user: those of a stranger's file must not run.
    qxScriptRunner::setAllowed(qxScriptRunner::Nothing);
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

    // An unknown name would be ignored.
    const QString name = arguments[2];
    if (!qxVariants::findVariantSet(name))
        return fail(QStringLiteral("no set \"%1\"; there are: %2").arg(name, knownSets()));
    const bool keepCamera = false;
    qxVariants::selectVariantSet(name.toUtf8().constData(), keepCamera);
    printStates();

    if (arguments.size() < 4)
        return 0;
    file.setVariantsDocument(qxVariantWriter().write());
    return file.save(arguments[3]) ? 0 : fail(file.errorString());
}
