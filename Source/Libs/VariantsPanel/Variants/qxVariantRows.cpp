#include "qxVariantRows.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"

#include "qxStateWords.h"

#include <algorithm>

namespace {

/// Whether each of the words occurs in the name of the variant or of an option. What the module
/// understands by itself, such as "!Next", most variants have.
bool isFound(const qxVariant &variant, const QStringList &words)
{
    return std::all_of(words.begin(), words.end(), [&variant](const QString &word) {
        return variant.name.contains(word, Qt::CaseInsensitive)
            || std::any_of(variant.options.begin(), variant.options.end(),
                           [&word](const qxVariantOption &option) {
                               return !option.name.startsWith('!')
                                   && option.name.contains(word, Qt::CaseInsensitive);
                           });
    });
}

} // namespace

qxVariantRows::Above qxVariantRows::Above::of(quintptr number)
{
    if (number == 0)
        return Above();
    const int rest = int((number - 1) / 2);
    return {rest % kindCount(), rest / kindCount() - 1, (number - 1) % 2 == 1};
}

quintptr qxVariantRows::Above::number() const
{
    return kind < 0 ? 0
                    : 1 + 2 * (quintptr(variant + 1) * quintptr(kindCount()) + quintptr(kind))
            + quintptr(isActions);
}

int qxVariantRows::kindCount()
{
    return int(qxVariantKinds::all().size());
}

const qxVariantKind &qxVariantRows::kindAt(int kind)
{
    return *qxVariantKinds::all()[std::size_t(kind)];
}

int qxVariantRows::rowOf(const qxVariantKind &kind)
{
    const qxVariantKinds::List &all = qxVariantKinds::all();
    return int(std::find(all.begin(), all.end(), &kind) - all.begin());
}

void qxVariantRows::read(const QStringList &words)
{
    m_kinds.clear();
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        m_kinds.emplace_back();
        std::vector<Variant> &variants = m_kinds.back().variants;
        QHash<QString, int> &rows = m_kinds.back().rows;
        kind->visit([&](const qxVariant &variant) {
            if (!isFound(variant, words))
                return;
            if (!rows.contains(variant.name))
                rows.insert(variant.name, int(variants.size()));
            variants.push_back(rowsOf(*kind, variant));
        });
    }
}

qxVariantRows::Variant qxVariantRows::rowsOf(const qxVariantKind &kind, const qxVariant &variant)
{
    Variant rows{variant.name, {}, 0, QString(), false};
    for (const qxVariantOption &option : variant.options)
        rows.options.push_back({option.name, option.shortcut,
                                option.isAction || qxStateWords::isAction(kind, option.name)});
    const auto actions =
        std::stable_partition(rows.options.begin(), rows.options.end(),
                              [](const Option &option) { return !option.isAction; });
    rows.states = int(actions - rows.options.begin());
    return rows;
}

int qxVariantRows::rowOf(int kind, const QString &variant) const
{
    return m_kinds[std::size_t(kind)].rows.value(variant, -1);
}

int qxVariantRows::count() const
{
    std::size_t count = 0;
    for (const Kind &kind : m_kinds)
        count += kind.variants.size();
    return int(count);
}

int qxVariantRows::countBelow(const Above &above, int row) const
{
    if (above.kind < 0)
        return int(variantsOf(row).size());
    const Variant &variant = *variantAt(above, row);
    const int actions = int(variant.options.size()) - variant.states;
    if (above.variant < 0)
        return variant.states + (actions > 0 ? 1 : 0);
    return isActions(above, row) ? actions : 0;
}

const qxVariantRows::Variant *qxVariantRows::variantAt(const Above &above, int row) const
{
    if (above.kind < 0)
        return nullptr;
    return &variantsOf(above.kind)[std::size_t(above.variant < 0 ? row : above.variant)];
}

const qxVariantRows::Option *qxVariantRows::optionAt(const Above &above, int row) const
{
    if (above.variant < 0 || isActions(above, row))
        return nullptr;
    const Variant &variant = *variantAt(above, row);
    return &variant.options[std::size_t(above.isActions ? variant.states + row : row)];
}

bool qxVariantRows::isActions(const Above &above, int row) const
{
    return above.variant >= 0 && !above.isActions && row == variantAt(above, row)->states;
}
