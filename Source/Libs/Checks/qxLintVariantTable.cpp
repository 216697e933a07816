#include "qxLintVariantTable.h"

#include "qxVariantKind.h"

void qxLintUse::add(const QString &state, int more)
{
    int &count = m_counts[state];
    const bool wasUsed = count > 0;
    count += more;
    if ((count > 0) == wasUsed)
        return;
    m_isChanged = true;
    m_steps += qxSwitchStepping::stepOf(state) ? more : 0;
    if (count == 0)
        m_counts.remove(state);
}

void qxLintVariantTable::set(const std::vector<qxDocumentVariant> &variants)
{
    m_all.clear();
    m_all.reserve(variants.size());
    m_byName.clear();
    for (const qxDocumentVariant &each : variants) {
        qxLintVariant variant{
            &each, &m_scene.base(*each.kind, each.base), &use(each.kind, each.name), {}};
        for (const qxDocumentOption &option : each.options)
            variant.options.insert(option.name);
        QHash<QString, int> &places = m_byName[each.kind];
        const int replaced = places.value(each.name, -1);
        if (replaced >= 0)
            m_all[std::size_t(replaced)].use = &m_unused;
        places.insert(each.name, int(m_all.size()));
        m_all.push_back(std::move(variant));
    }
}

const qxLintVariant *qxLintVariantTable::find(const qxVariantKind *kind, const QString &name) const
{
    const auto ofKind = m_byName.constFind(kind);
    const int place = ofKind == m_byName.constEnd() ? -1 : ofKind->value(name, -1);
    return place < 0 ? nullptr : &m_all[std::size_t(place)];
}

qxLintUse &qxLintVariantTable::use(const qxVariantKind *kind, const QString &name)
{
    return m_uses[kind][name];
}
