// A library that uses the module: where it is loaded by name, the module comes with it.
#include "qxNodeVariant.h"
#include "qxVariantReader.h"
#include "qxVariantSet.h"
#include "qxVariantWriter.h"
#include "qxVariants.h"

#include "qxNames.h"

/// Creates a set, writes and reads it, and selects it; whether the scene follows.
extern "C" bool useModule()
{
    qxVariantSet *set = qxVariants::createVariantSet("Race", true, nullptr);
    set->add(qxVariants::createNodeVariant(qxNames::findNode("Sail"), true), "Spinnaker");
    const QByteArray document = qxVariantWriter().write();
    qxVariants::clearVariantSets();
    qxVariants::clearNodeVariants();
    qxVariantReader().read(document.constData());
    qxVariants::findNodeVariant("Sail")->onSelect("Main Sail");
    qxVariants::selectVariantSet("Race", true);
    return qxVariants::findNodeVariant("Sail")->onCurrent() == "Spinnaker";
}
