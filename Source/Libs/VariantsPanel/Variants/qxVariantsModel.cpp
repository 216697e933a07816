#include "qxVariantsModel.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"

#include "qxKeyText.h"
#include "qxPanelEvents.h"

#include <QCoreApplication>
#include <QFont>
#include <QTextDocument>

#include <algorithm>

namespace {

int kindCount()
{
    return int(qxVariantKinds::all().size());
}

const qxVariantKind &kindAt(int row)
{
    return *qxVariantKinds::all()[std::size_t(row)];
}

/// What the internal number of an index says: which row stands above it.
struct Above {
    int kind = -1; ///< -1 for a row without anything above it, which is a kind itself
    int variant = -1; ///< -1 for a variant

    static Above of(const QModelIndex &index)
    {
        const int number = int(index.internalId());
        if (number == 0)
            return Above();
        if (number <= kindCount())
            return {number - 1, -1};
        const int rest = number - 1 - kindCount();
        return {rest % kindCount(), rest / kindCount()};
    }
    quintptr number() const
    {
        if (kind < 0)
            return 0;
        if (variant < 0)
            return quintptr(kind + 1);
        return quintptr(1 + kindCount() + variant * kindCount() + kind);
    }
};

} // namespace

qxVariantsModel::qxVariantsModel(qxPanelEvents *events, QObject *parent)
    : QAbstractItemModel(parent)
{
    connect(events, &qxPanelEvents::variantsChanged, this, &qxVariantsModel::refresh);
    connect(events, &qxPanelEvents::statesChanged, this, &qxVariantsModel::refreshStates);
    refresh();
}

qxVariant *qxVariantsModel::variantAt(const QModelIndex &index) const
{
    const Above above = Above::of(index);
    if (!index.isValid() || above.kind < 0)
        return nullptr;
    const int row = above.variant < 0 ? index.row() : above.variant;
    return kindAt(above.kind).find(variantsOf(above.kind)[std::size_t(row)].name);
}

QString qxVariantsModel::optionAt(const QModelIndex &index) const
{
    const Above above = Above::of(index);
    if (!index.isValid() || above.variant < 0)
        return QString();
    const Variant &variant = variantsOf(above.kind)[std::size_t(above.variant)];
    return variant.options[std::size_t(index.row())].name;
}

QModelIndex qxVariantsModel::indexOf(const qxVariantKind &kind, const QString &variant) const
{
    const qxVariantKinds::List &all = qxVariantKinds::all();
    return indexOf(int(std::find(all.begin(), all.end(), &kind) - all.begin()), variant);
}

QModelIndex qxVariantsModel::indexOf(int kind, const QString &variant) const
{
    const int row = m_kinds[std::size_t(kind)].rows.value(variant, -1);
    return row < 0 ? QModelIndex() : createIndex(row, NameColumn, Above{kind, -1}.number());
}

void qxVariantsModel::retranslate()
{
    showAnew(QModelIndex());
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

QModelIndex qxVariantsModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    if (!parent.isValid())
        return createIndex(row, column, Above().number());
    const Above above = Above::of(parent);
    return createIndex(row, column,
                       above.kind < 0 ? Above{parent.row(), -1}.number()
                                      : Above{above.kind, parent.row()}.number());
}

QModelIndex qxVariantsModel::parent(const QModelIndex &index) const
{
    const Above above = Above::of(index);
    if (!index.isValid() || above.kind < 0)
        return QModelIndex();
    if (above.variant < 0)
        return createIndex(above.kind, 0, Above().number());
    return createIndex(above.variant, 0, Above{above.kind, -1}.number());
}

int qxVariantsModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return kindCount();
    const Above above = Above::of(parent);
    if (parent.column() > 0 || above.variant >= 0)
        return 0;
    if (above.kind < 0)
        return int(variantsOf(parent.row()).size());
    return int(variantsOf(above.kind)[std::size_t(parent.row())].options.size());
}

QVariant qxVariantsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Above above = Above::of(index);
    if (above.kind < 0)
        return index.column() == NameColumn ? kindData(index.row(), role) : QVariant();
    const std::vector<Variant> &variants = variantsOf(above.kind);
    if (above.variant < 0)
        return variantData(above.kind, variants[std::size_t(index.row())], index.column(), role);
    return optionData(above.kind, variants[std::size_t(above.variant)], index.row(), index, role);
}

QVariant qxVariantsModel::kindData(int kind, int role) const
{
    if (role == Qt::DisplayRole)
        return QStringLiteral("%1 (%2)")
            .arg(QCoreApplication::translate("qxVariants", kindAt(kind).title))
            .arg(variantsOf(kind).size());
    if (role != Qt::FontRole)
        return QVariant();
    QFont font;
    font.setBold(true);
    return font;
}

QVariant qxVariantsModel::variantData(int kind, const Variant &variant, int column, int role) const
{
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return QVariant();
    const QString text = column == NameColumn ? QString(variant.name) : currentOf(kind, variant);
    // A tool tip would take names for markup.
    return role == Qt::DisplayRole ? text : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

QVariant qxVariantsModel::optionData(int kind, const Variant &variant, int row,
                                     const QModelIndex &index, int role) const
{
    const Option &option = variant.options[std::size_t(row)];
    const bool isCurrent = currentOf(kind, variant) == option.name;
    if (role == CurrentRole)
        return isCurrent;
    if (role == ActionRole)
        return option.isAction;
    if (role == Qt::DisplayRole)
        return index.column() == NameColumn ? option.name : qxKeyText::shown(option.shortcut);
    if (role != Qt::FontRole)
        return QVariant();
    QFont font;
    font.setBold(isCurrent);
    font.setItalic(option.isAction);
    return font;
}

QVariant qxVariantsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return section == NameColumn ? tr("Variant") : tr("State");
}

const QString &qxVariantsModel::currentOf(int kind, const Variant &variant) const
{
    if (!variant.isCurrentKnown) {
        const qxVariant *const found = kindAt(kind).find(variant.name);
        variant.current = found ? found->shown().visibleState() : QString();
        variant.isCurrentKnown = true;
    }
    return variant.current;
}

void qxVariantsModel::refresh()
{
    Q_EMIT layoutAboutToBeChanged();
    const QModelIndexList kept = persistentIndexList();
    std::vector<Place> places;
    for (const QModelIndex &index : kept)
        places.push_back(placeOf(index));
    readVariants();
    QModelIndexList moved;
    for (const Place &place : places)
        moved.append(indexOf(place));
    changePersistentIndexList(kept, moved);
    Q_EMIT layoutChanged();
}

void qxVariantsModel::readVariants()
{
    m_kinds.clear();
    for (const qxVariantKind *kind : qxVariantKinds::all()) {
        m_kinds.emplace_back();
        std::vector<Variant> &variants = m_kinds.back().variants;
        QHash<QString, int> &rows = m_kinds.back().rows;
        kind->visit([&](const qxVariant &variant) {
            if (!rows.contains(variant.name))
                rows.insert(variant.name, int(variants.size()));
            variants.push_back({variant.name, {}, QString(), false});
            for (const qxVariantOption &option : variant.options)
                variants.back().options.push_back({option.name, option.shortcut, option.isAction});
        });
    }
}

qxVariantsModel::Place qxVariantsModel::placeOf(const QModelIndex &index) const
{
    const Above above = Above::of(index);
    if (above.kind < 0)
        return {index.row(), QString(), QString(), index.column()};
    const int row = above.variant < 0 ? index.row() : above.variant;
    const QString &variant = variantsOf(above.kind)[std::size_t(row)].name;
    return {above.kind, variant, optionAt(index), index.column()};
}

QModelIndex qxVariantsModel::indexOf(const Place &place) const
{
    if (place.variant.isEmpty())
        return index(place.kind, place.column, QModelIndex());
    const QModelIndex variant = indexOf(place.kind, place.variant);
    if (!variant.isValid() || place.option.isEmpty())
        return variant.sibling(variant.row(), place.column);
    for (int row = 0; row < rowCount(variant); ++row) {
        const QModelIndex option = index(row, place.column, variant);
        if (optionAt(option) == place.option)
            return option;
    }
    return QModelIndex();
}

void qxVariantsModel::refreshStates()
{
    for (int kind = 0; kind < kindCount(); ++kind) {
        for (const Variant &variant : variantsOf(kind))
            variant.isCurrentKnown = false;
        const QModelIndex above = index(kind, 0, QModelIndex());
        for (int row = 0; row < rowCount(above); ++row)
            showAnew(index(row, 0, above));
        showAnew(above);
    }
}

void qxVariantsModel::showAnew(const QModelIndex &parent)
{
    if (const int count = rowCount(parent))
        Q_EMIT dataChanged(index(0, 0, parent), index(count - 1, StateColumn, parent));
}
