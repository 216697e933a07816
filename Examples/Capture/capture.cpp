// Brings one variant into a state and captures what the scene shows then as a new set:
//
//     capture SCENE VARIANT STATE SET OUT

#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Files/qxSceneFile.h"
#include "qxHost.h"

#include <QCoreApplication>
#include <QTextStream>

namespace {

int fail(const QString &reason, int code = 1)
{
    QTextStream(stderr) << "capture: " << reason << '\n';
    return code;
}

/// The first variant of that name, be it of a node, a material, a light or anything else.
qxVariant *findVariant(const QString &name)
{
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        if (qxVariant *variant = kind->find(name))
            return variant;
    }
    return nullptr;
}

/// A set holds names of variants with the states that it brings them into.
void printContents(const qxVariantSet &set)
{
    QTextStream out(stdout);
    out << set.name << '\n';
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        for (const qxVariantState &each : set.*kind->states)
            out << "  " << kind->word << ' ' << each.variant << ": " << each.state << '\n';
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 6)
        return fail("usage: capture SCENE VARIANT STATE SET OUT", 2);

    qxHost host;
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

    qxVariant *const variant = findVariant(arguments[2]);
    if (!variant || !variant->find(arguments[3]))
        return fail(QStringLiteral("no variant \"%1\" with a state \"%2\"")
                        .arg(arguments[2], arguments[3]));
    variant->onSelect(arguments[3]);

    const QString name = arguments[4];
    if (qxVariants::findVariantSet(name))
        return fail(QStringLiteral("there is a set \"%1\" already").arg(name));
    qxVariants::createAndCaptureVariantSet(name.toUtf8().constData(), "Captured");
    const qxVariantSet *const set = qxVariants::findVariantSet(name);
    if (!set)
        return fail("nothing captured: nodes of the scene have one name and cannot be told apart");
    printContents(*set);

    file.setVariantsDocument(qxVariantWriter().write());
    return file.save(arguments[5]) ? 0 : fail(file.errorString());
}
