#include "qxVariantWriter.h"

#include "Internal/Document/qxDocumentNames.h"
#include "Internal/Document/qxDocumentPrint.h"
#include "Internal/Document/qxDocumentText.h"
#include "qxLightVariant.h"
#include "qxMaterialVariant.h"
#include "qxNodeVariant.h"
#include "qxOverlayVariant.h"
#include "qxTransformVariant.h"
#include "qxVariantGroup.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"
#include "qxVariants.h"

namespace {

namespace names = qxDocumentNames;
namespace text = qxDocumentText;

const QString &word(bool value)
{
    return value ? names::trueWord : names::falseWord;
}

void writeReferences(QDomElement &parent, const qxVariantSet &set,
                     const qxVariantKinds::List &kinds)
{
    for (const qxVariantKind *kind : kinds) {
        const QString tag = kind->referenceTag;
        for (const qxVariantState &each : set.*kind->states) {
            QDomElement element = text::appendElement(parent, tag);
            text::setName(element, names::ref, each.variant);
            text::setName(element, names::state, each.state);
        }
    }
}

/// One element per name, with the name in that attribute.
void writeNames(QDomElement &parent, const QString &tag, const QString &attribute,
                const qxUniqueNames &all)
{
    for (const QString &each : all) {
        QDomElement element = text::appendElement(parent, tag);
        text::setName(element, attribute, each);
    }
}

void writePreview(QDomDocument &document, QDomElement &parent, const QByteArray &bytes)
{
    if (bytes.isEmpty())
        return;
    QDomElement element = text::appendElement(parent, names::Preview);
    element.appendChild(document.createCDATASection(QString::fromLatin1(bytes.toBase64())));
}

void writeInclInfo(QDomElement &parent, const qxVariantSet &set)
{
    QDomElement element = text::appendElement(parent, names::InclInfo);
    text::setFlag(element, names::inclNodes, set.inclNodes);
    text::setFlag(element, names::inclMats, set.inclMats);
    text::setFlag(element, names::inclLights, set.inclLights);
    text::setFlag(element, names::inclEnv, set.inclEnv);
    text::setFlag(element, names::inclView, set.inclView);
}

void writeMaterialSnapshots(QDomElement &parent, const qxVariantSet &set)
{
    const auto &snapshots = set.materialSnapshots;
    for (auto each = snapshots.begin(); each != snapshots.end(); ++each) {
        QDomElement element = text::appendElement(parent, names::MaterialSnapshot);
        text::setName(element, names::nodePath, each.key());
        text::setName(element, names::materialName, each.value());
    }
}

void writeValues(QDomElement &parent, const qxVariantSet &set)
{
    for (auto each = set.values.begin(); each != set.values.end(); ++each) {
        QDomElement element = text::appendText(parent, names::Value, each.value());
        text::setName(element, names::name, each.key());
    }
}

void writeAnalyzer(QDomElement &parent, const qxVariantSet &set)
{
    const osg::Pnt3f position = set.getClippingPlanePosition();
    const osg::Vec3f normal = set.getClippingPlaneNormal();
    const osg::Color3f planeColor = set.getClippingPlaneColor();
    const osg::Color3f gridColor = set.getClippingGridColor();
    const osg::Color3f contourColor = set.getClippingContourColor();

    QDomElement element = text::appendElement(parent, names::Analyzer);
    element.setAttribute(names::clipState, set.getClippingState());
    element.setAttribute(names::clipPlanePositionX, position[0]);
    element.setAttribute(names::clipPlanePositionY, position[1]);
    element.setAttribute(names::clipPlanePositionZ, position[2]);
    element.setAttribute(names::clipPlaneNormalX, normal[0]);
    element.setAttribute(names::clipPlaneNormalY, normal[1]);
    element.setAttribute(names::clipPlaneNormalZ, normal[2]);
    text::setFlag(element, names::clipPlaneInvert, set.getClippingInvert());
    text::setFlag(element, names::clipPlaneHideScene, set.getClippingHideScene());
    text::setFlag(element, names::clipPlaneShow, set.getClippingShowPlane());
    element.setAttribute(names::clipPlaneColorR, planeColor[0]);
    element.setAttribute(names::clipPlaneColorG, planeColor[1]);
    element.setAttribute(names::clipPlaneColorB, planeColor[2]);
    text::setFlag(element, names::clipGridShow, set.getClippingShowGrid());
    element.setAttribute(names::clipGridColorR, gridColor[0]);
    element.setAttribute(names::clipGridColorG, gridColor[1]);
    element.setAttribute(names::clipGridColorB, gridColor[2]);
    text::setFlag(element, names::clipContourShow, set.getClippingShowContour());
    element.setAttribute(names::clipContourColorR, contourColor[0]);
    element.setAttribute(names::clipContourColorG, contourColor[1]);
    element.setAttribute(names::clipContourColorB, contourColor[2]);
    element.setAttribute(names::clipContourWidth, set.getClippingContourWidth());
}

void addNames(QSet<QString> &all, const qxVariantKind &kind)
{
    kind.visit([&](const qxVariant &variant) {
        all << variant.name << variant.*kind.sceneName << variant.defaultState;
        for (const qxVariantOption &option : variant.options)
            all << option.name;
    });
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        for (const qxVariantState &each : set->*kind.states)
            all << each.variant << each.state;
    }
}

template <class Names>
void addAll(QSet<QString> &all, const Names &names)
{
    for (const QString &name : names)
        all << name;
}

/// Every name that the registry holds.
QSet<QString> allNames()
{
    QSet<QString> all;
    for (const qxVariantGroup *group : qxVariants::_variantGroups)
        all << group->name;
    for (const qxVariantSet *set : qxVariants::_variantSets) {
        all << set->name << set->defaultViewpoint;
        for (const qxUniqueNames *names :
             {&set->viewpoints, &set->animations, &set->geometries, &set->targetNodeNames})
            addAll(all, *names);
        addAll(all, set->materialSnapshots.keys());
        addAll(all, set->materialSnapshots.values());
        addAll(all, set->values.keys());
    }
    for (const qxVariantKind *kind : qxVariantKinds::all())
        addNames(all, *kind);
    return all;
}

void writeVariant(QDomElement &parent, const qxVariantKind &kind, const qxVariant &variant)
{
    const qxDocumentLoss loss(allNames);
    QDomElement element = text::appendElement(parent, kind.tag);
    text::setName(element, names::name, variant.name);
    text::setName(element, names::base, variant.*kind.sceneName);
    QDomElement standard = text::appendElement(element, names::Default);
    text::setName(standard, names::ref, variant.defaultState);
    for (const qxVariantOption &option : variant.options) {
        QDomElement state = text::appendElement(element, names::State);
        text::setName(state, names::name, option.name);
        text::appendText(state, names::Hotkey, option.shortcut);
    }
}

} // namespace

QByteArray qxVariantWriter::write()
{
    const qxDocumentLoss loss(allNames);
    m_document = QDomDocument(QStringLiteral("variants"));
    m_document.appendChild(m_document.createProcessingInstruction(
        QStringLiteral("xml"), QStringLiteral("version=\"1.0\" encoding=\"utf-8\"")));
    QDomElement root = m_document.createElement(names::Variants);
    m_document.appendChild(root);
    for (qxVariantGroup *group : qxVariants::_variantGroups)
        writeVariantGroup(m_document, root, group);
    for (qxVariantSet *set : qxVariants::_variantSets) {
        if (!set->group)
            writeVariantSet(m_document, root, set);
    }
    qxVariantKinds::visit([&](const qxVariantKind &kind, const qxVariant &variant) {
        writeVariant(root, kind, variant);
    });
    return qxDocumentPrint::print(m_document);
}

QByteArray qxVariantWriter::writeToCompare()
{
    const qxDocumentLoss loss(allNames, qxDocumentLoss::Silent);
    return write();
}

QString qxVariantWriter::writable(const QString &text)
{
    const qxDocumentLoss loss(allNames, qxDocumentLoss::Silent);
    return qxDocumentLoss::writable(text);
}

void qxVariantWriter::writeVariantGroup(QDomDocument &document, QDomElement &parent,
                                        qxVariantGroup *group)
{
    const qxDocumentLoss loss(allNames);
    QDomElement element = text::appendElement(parent, names::VariantGroup);
    text::setName(element, names::name, group->name);
    text::setText(element, names::comment, group->comment);
    element.setAttribute(names::visible, word(group->visible));
    for (qxVariantSet *set : group->sets)
        writeVariantSet(document, element, set);
}

void qxVariantWriter::writeVariantSet(QDomDocument &document, QDomElement &parent,
                                      qxVariantSet *set)
{
    const qxDocumentLoss loss(allNames);
    QDomElement element = text::appendElement(parent, names::VariantSet);
    text::setName(element, names::name, set->name);
    text::setText(element, names::comment, set->comment);
    text::setName(element, names::defaultViewpoint, set->defaultViewpoint);
    text::appendText(element, names::Hotkey, set->hotkey);
    text::appendText(element, names::SequentialAnimation, word(set->sequentialAnimation));
    text::appendText(element, names::Script, set->script);
    writePreview(document, element, set->preview);
    writeReferences(element, *set, qxVariantKinds::referenceOrder().first);
    writeNames(element, names::ViewpointRef, names::ref, set->viewpoints);
    writeReferences(element, *set, qxVariantKinds::referenceOrder().rest);
    writeNames(element, names::AnimationRef, names::ref, set->animations);
    writeNames(element, names::GeometryRef, names::ref, set->geometries);
    writeNames(element, names::TargetName, names::name, set->targetNodeNames);
    writeInclInfo(element, *set);
    writeMaterialSnapshots(element, *set);
    writeValues(element, *set);
    writeAnalyzer(element, *set);
}

void qxVariantWriter::writeNodeVariant(QDomDocument &, QDomElement &parent, qxNodeVariant *variant)
{
    writeVariant(parent, qxVariantKinds::node, *variant);
}

void qxVariantWriter::writeMaterialVariant(QDomDocument &, QDomElement &parent,
                                           qxMaterialVariant *variant)
{
    writeVariant(parent, qxVariantKinds::material, *variant);
}

void qxVariantWriter::writeLightVariant(QDomDocument &, QDomElement &parent,
                                        qxLightVariant *variant)
{
    writeVariant(parent, qxVariantKinds::light, *variant);
}

void qxVariantWriter::writeOverlayVariant(QDomDocument &, QDomElement &parent,
                                          qxOverlayVariant *variant)
{
    writeVariant(parent, qxVariantKinds::overlay, *variant);
}

void qxVariantWriter::writeTransformVariant(QDomDocument &, QDomElement &parent,
                                            qxTransformVariant *variant)
{
    writeVariant(parent, qxVariantKinds::transform, *variant);
}
