#include "qxPreviewAge.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"
#include "qxVariantSet.h"

#include <QCryptographicHash>
#include <QDataStream>

namespace {

QByteArray shortened(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Md5);
}

void writeVariant(QDataStream &stream, const qxVariantKind &kind, const QString &name)
{
    const qxVariant *const variant = kind.find(name);
    if (!variant)
        return;
    stream << variant->*kind.sceneName << variant->defaultState;
    for (const qxVariantOption &option : variant->options)
        stream << option.name << option.isAction;
}

void writeClipping(QDataStream &stream, const qxAnalyzerVariant &clipping)
{
    stream << QByteArray::fromStdString(clipping.script());
}

} // namespace

void qxPreviewAge::noteMade(const qxVariantSet &set)
{
    if (set.preview.isEmpty())
        return;
    m_made[shortened(set.preview)].insert(presentOf(set));
    m_known.remove(set.name);
}

bool qxPreviewAge::isStale(const qxVariantSet &set) const
{
    if (m_made.isEmpty() || set.preview.isEmpty())
        return false;
    const auto known = m_known.constFind(set.name);
    if (known != m_known.constEnd())
        return *known;
    const auto made = m_made.constFind(shortened(set.preview));
    const bool isStale = made != m_made.constEnd() && !made->contains(presentOf(set));
    m_known.insert(set.name, isStale);
    return isStale;
}

void qxPreviewAge::look()
{
    m_known.clear();
    m_present.clear();
    if (!m_made.isEmpty())
        Q_EMIT changed();
}

void qxPreviewAge::forget()
{
    m_made.clear();
    look();
}

/// What a picture of the set would be made of now.
QByteArray qxPreviewAge::presentOf(const qxVariantSet &set) const
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << surroundings();
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        for (const qxVariantState &entry : set.*kind->states) {
            stream << entry.variant << entry.state;
            writeVariant(stream, *kind, entry.variant);
        }
    }
    stream << set.viewpoints.list() << set.script << set.targetNodeNames.list() << set.inclNodes;
    writeClipping(stream, set.analyzer);
    return shortened(bytes);
}

const QByteArray &qxPreviewAge::surroundings() const
{
    if (m_present.isEmpty() && m_surroundings)
        m_present = shortened(m_surroundings());
    return m_present;
}
