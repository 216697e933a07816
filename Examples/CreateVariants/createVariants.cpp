// Creates variants of what can vary in a scene, and a set for each choice of its switches:
//
//     create-variants SCENE OUT

#include "qxLightVariantCreator.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxNodeVariantCreator.h"
#include "qxVariantGroup.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "Files/qxSceneFile.h"
#include "qxHost.h"
#include "qxScenegraph.h"

#include <OpenSG/OSGSwitchMaterial.h>

#include <QCoreApplication>
#include <QTextStream>

namespace {

int fail(const QString &reason, int code = 1)
{
    QTextStream(stderr) << "create-variants: " << reason << '\n';
    return code;
}

/// Of switch nodes, lights and switch materials. Variants that are there already stay as they are.
void createVariants()
{
    qxNodeVariantCreator().traverse(qxScenegraph::getRoot());
    qxLightVariantCreator().traverse(qxScenegraph::getRoot());

    std::vector<osg::MaterialPtr> materials;
    qxScenegraph::getMaterialPool()->get(materials);
    for (const osg::MaterialPtr &material : materials) {
        // A plain material would become a switch material with one choice.
        if (osg::SwitchMaterialPtr::dcast(material) != osg::NullFC)
            qxVariants::createMaterialVariant(material, true);
    }
}

/// One for each thing that the variant can show, in a group of its name.
template <class Variant>
void createSets(Variant &variant)
{
    QTextStream out(stdout);
    qxVariantGroup *const group = qxVariants::findOrCreateVariantGroup(variant.name);
    out << group->name << '\n';
    for (const qxVariantOption &option : variant.options) {
        if (option.name.startsWith('!')) // such as "!Next" or "!None"
            continue;
        const QString name = QStringLiteral("%1: %2").arg(variant.name, option.name);
        qxVariantSet *const set =
            qxVariants::createVariantSet(qxVariants::getUniqueVariantSetName(name), true, group);
        set->add(&variant, option.name);
        out << "  " << set->name << '\n';
    }
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.size() != 3)
        return fail("usage: create-variants SCENE OUT", 2);

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

    createVariants();
    for (qxNodeVariant *variant : qxVariants::_nodeVariants)
        createSets(*variant);
    for (qxMaterialVariant *variant : qxVariants::_materialVariants)
        createSets(*variant);

    file.setVariantsDocument(qxVariantWriter().write());
    return file.save(arguments[2]) ? 0 : fail(file.errorString());
}
