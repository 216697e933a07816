#include "Internal/Document/qxDocumentElements.h"

#include "Internal/Document/qxDocumentNames.h"
#include "Internal/Document/qxElementText.h"

namespace {

namespace names = qxDocumentNames;
namespace text = qxElementText;

const QString &word(bool value)
{
    return value ? names::trueWord : names::falseWord;
}

void appendReferences(QDomElement &parent, const qxDocumentSet &set,
                      const qxVariantKinds::List &kinds)
{
    for (const qxVariantKind *kind : kinds) {
        const QString tag = kind->referenceTag;
        for (const qxDocumentReference &each : set.references) {
            if (each.kind != kind)
                continue;
            QDomElement element = text::appendElement(parent, tag);
            text::setName(element, names::ref, each.variant);
            text::setName(element, names::state, each.state);
        }
    }
}

void appendNames(QDomElement &parent, const qxDocumentSet &set, qxNameList list)
{
    const names::NameElement &form = names::nameElements[std::size_t(list)];
    for (const qxDocumentText &each : set.of(list)) {
        QDomElement element = text::appendElement(parent, form.tag);
        text::setName(element, form.attribute, each.text);
    }
}

void appendPreview(QDomElement &parent, const QByteArray &base64)
{
    if (base64.isEmpty())
        return;
    QDomElement element = text::appendElement(parent, names::Preview);
    element.appendChild(parent.ownerDocument().createCDATASection(QString::fromLatin1(base64)));
}

void appendInclusions(QDomElement &parent, const qxDocumentSet &set)
{
    QDomElement element = text::appendElement(parent, names::InclInfo);
    for (int i = 0; i < qxInclusions; ++i)
        text::setFlag(element, names::inclusions[i], set.inclusions[std::size_t(i)]);
}

void appendSnapshots(QDomElement &parent, const qxDocumentSet &set)
{
    for (const qxDocumentText &each : set.snapshots) {
        QDomElement element = text::appendElement(parent, names::MaterialSnapshot);
        text::setName(element, names::nodePath, each.text);
        text::setName(element, names::materialName, each.more);
    }
}

void appendValues(QDomElement &parent, const qxDocumentSet &set)
{
    for (const qxDocumentText &each : set.values) {
        QDomElement element = text::appendText(parent, names::Value, each.more);
        text::setName(element, names::name, each.text);
    }
}

void appendClipping(QDomElement &parent, const qxDocumentSet &set)
{
    QDomElement element = text::appendElement(parent, names::Analyzer);
    for (const qxClippingField &field : qxClippingField::all())
        element.setAttribute(field.attribute, field.text(set.clipping));
}

} // namespace

QDomElement qxDocumentElements::append(QDomElement &parent, const qxDocumentGroup &group)
{
    QDomElement element = text::appendElement(parent, names::VariantGroup);
    text::setName(element, names::name, group.name);
    text::setText(element, names::comment, group.comment);
    element.setAttribute(names::visible, word(group.isVisible));
    return element;
}

void qxDocumentElements::append(QDomElement &parent, const qxDocumentSet &set)
{
    QDomElement element = text::appendElement(parent, names::VariantSet);
    text::setName(element, names::name, set.name);
    text::setText(element, names::comment, set.comment);
    text::setName(element, names::defaultViewpoint, set.defaultViewpoint);
    text::appendText(element, names::Hotkey, set.hotkey.text);
    text::appendText(element, names::SequentialAnimation, word(set.isSequential));
    text::appendText(element, names::Script, set.script.text);
    appendPreview(element, set.preview);
    appendReferences(element, set, qxVariantKinds::referenceOrder().first);
    appendNames(element, set, qxNameList::Viewpoints);
    appendReferences(element, set, qxVariantKinds::referenceOrder().rest);
    appendNames(element, set, qxNameList::Animations);
    appendNames(element, set, qxNameList::Geometries);
    appendNames(element, set, qxNameList::Targets);
    appendInclusions(element, set);
    appendSnapshots(element, set);
    appendValues(element, set);
    appendClipping(element, set);
}

void qxDocumentElements::append(QDomElement &parent, const qxDocumentVariant &variant)
{
    QDomElement element = text::appendElement(parent, variant.kind->tag);
    text::setName(element, names::name, variant.name);
    text::setName(element, names::base, variant.base);
    QDomElement standard = text::appendElement(element, names::Default);
    text::setName(standard, names::ref, variant.standard.text);
    for (const qxDocumentOption &option : variant.options) {
        QDomElement state = text::appendElement(element, names::State);
        text::setName(state, names::name, option.name);
        text::appendText(state, names::Hotkey, option.hotkey.text);
    }
}

QDomDocument qxDocumentElements::of(const qxDocument &document)
{
    QDomDocument dom(QStringLiteral("variants"));
    dom.appendChild(dom.createProcessingInstruction(
        QStringLiteral("xml"), QStringLiteral("version=\"1.0\" encoding=\"utf-8\"")));
    QDomElement root = dom.createElement(names::Variants);
    dom.appendChild(root);
    std::vector<QDomElement> parents;
    for (const qxDocumentGroup &group : document.groups)
        parents.push_back(append(root, group));
    for (const qxDocumentSet &set : document.sets)
        append(set.group < 0 ? root : parents[std::size_t(set.group)], set);
    for (const qxDocumentVariant &variant : document.variants)
        append(root, variant);
    return dom;
}
