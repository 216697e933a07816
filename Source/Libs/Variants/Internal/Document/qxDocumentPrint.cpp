#include "Internal/Document/qxDocumentPrint.h"

#include "Internal/Document/qxDocumentElements.h"
#include "Internal/Document/qxDocumentNames.h"

#include "qxDocument.h"

#include <QDomDocument>
#include <QHash>
#include <QVector>

#include <algorithm>

namespace {

/// Blanks per level.
constexpr int Indentation = 1;

/// The place of ` name="value"` among the attributes of its element.
int rankOf(const QStringRef &attribute)
{
    static const QHash<QString, int> ranks = [] {
        QHash<QString, int> result;
        for (const QString &each : qxDocumentNames::attributes)
            result.insert(each, result.size());
        for (const qxClippingField &each : qxClippingField::all())
            result.insert(each.attribute, result.size());
        return result;
    }();
    return ranks.value(attribute.mid(1, attribute.indexOf('=') - 1).toString());
}

bool isBefore(const QStringRef &one, const QStringRef &other)
{
    return rankOf(one) < rankOf(other);
}

/// Goes over a document that the DOM has printed: "<" begins nothing but markup, and a quotation
/// mark ends a value.
class Print {
public:
    explicit Print(const QString &text) : m_text(text) { m_result.reserve(text.size()); }

    QString run()
    {
        for (int open = m_text.indexOf('<'); open >= 0; open = m_text.indexOf('<', m_at)) {
            copyTo(open);
            if (m_text.midRef(m_at).startsWith(QLatin1String("<![CDATA[")))
                copyTo(m_text.indexOf(QLatin1String("]]>"), m_at));
            else
                passTag();
        }
        copyTo(m_text.size());
        return m_result;
    }

private:
    void copyTo(int end)
    {
        m_result += m_text.midRef(m_at, end - m_at);
        m_at = end;
    }

    /// Up to the end of a tag or of other markup; what follows an element's name are attributes.
    void passTag()
    {
        const bool hasAttributes = m_text.midRef(m_at + 1, 1).at(0).isLetter();
        copyTo(m_at + 1);
        while (m_text[m_at] != '>' && !(hasAttributes && m_text[m_at] == ' '))
            copyTo(m_at + 1);
        QVector<QStringRef> attributes;
        while (m_text[m_at] == ' ')
            attributes += attribute();
        std::sort(attributes.begin(), attributes.end(), &isBefore);
        for (const QStringRef &each : qAsConst(attributes))
            m_result += each;
    }

    /// The next one with the blank in front of it.
    QStringRef attribute()
    {
        const int start = m_at;
        const int value = m_text.indexOf('"', m_at) + 1;
        m_at = m_text.indexOf('"', value) + 1;
        return m_text.midRef(start, m_at - start);
    }

    const QString m_text;
    QString m_result;
    int m_at = 0;
};

/// The lines of one element that stands so many levels deep, at least one; `append` appends it.
template <class Append>
QByteArray linesOf(int depth, const Append &append)
{
    QDomDocument document;
    QDomElement parent = document.createElement(QStringLiteral("a"));
    document.appendChild(parent);
    for (int i = 1; i < depth; ++i)
        parent = parent.appendChild(document.createElement(QStringLiteral("a"))).toElement();
    append(parent);
    // Without the lines of its parents.
    const QByteArray text = qxDocumentPrint::print(document);
    int begin = 0, end = text.size() - 1;
    for (int i = 0; i < depth; ++i) {
        begin = text.indexOf('\n', begin) + 1;
        end = text.lastIndexOf('\n', end - 1);
    }
    return text.mid(begin, end + 1 - begin);
}

/// An element and, inside it, the lines of its children.
QByteArray withChildren(QByteArray element, const QByteArray &tag, const QByteArray &children)
{
    if (!children.isEmpty()) {
        const QByteArray indentation = element.left(element.indexOf('<'));
        element.replace(element.size() - 3, 2, ">"); // "/>" and the line end
        element += children + indentation + "</" + tag + ">\n";
    }
    return element;
}

} // namespace

QByteArray qxDocumentPrint::print(const QDomDocument &document)
{
    return Print(document.toString(Indentation)).run().toUtf8();
}

QByteArray qxDocumentPrint::print(const qxDocument &document)
{
    namespace elements = qxDocumentElements;
    std::vector<QByteArray> children(document.groups.size() + 1); // of groups; of none is last
    for (const qxDocumentSet &set : document.sets) {
        const bool isAlone = set.group < 0;
        (isAlone ? children.back() : children[std::size_t(set.group)]) += linesOf(
            isAlone ? 1 : 2, [&set](QDomElement &parent) { elements::append(parent, set); });
    }
    QByteArray all;
    for (std::size_t i = 0; i < document.groups.size(); ++i) {
        all += withChildren(
            linesOf(1, [&](QDomElement &parent) { elements::append(parent, document.groups[i]); }),
            qxDocumentNames::VariantGroup.toUtf8(), children[i]);
        children[i].clear();
    }
    all += children.back();
    for (const qxDocumentVariant &variant : document.variants)
        all += linesOf(1, [&](QDomElement &parent) { elements::append(parent, variant); });
    return withChildren(print(elements::of(qxDocument())), qxDocumentNames::Variants.toUtf8(), all);
}
