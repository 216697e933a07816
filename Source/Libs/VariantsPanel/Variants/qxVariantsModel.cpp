#include "qxVariantsModel.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"

#include "qxKeyText.h"
#include "qxPanelEvents.h"
#include "qxStateWords.h"

#include <QCoreApplication>
#include <QFont>
#include <QMimeData>
#include <QTextDocument>

#include <algorithm>

namespace {

QFont fontWith(bool isBold, bool isItalic)
{
    QFont font;
    font.setBold(isBold);
    font.setItalic(isItalic);
    return font;
}

} // namespace

qxVariantsModel::qxVariantsModel(qxPanelEvents *events, QObject *parent)
    : QAbstractItemModel(parent)
{
    connect(events, &qxPanelEvents::variantsChanged, this, &qxVariantsModel::refresh);
    connect(events, &qxPanelEvents::statesChanged, this, &qxVariantsModel::refreshStates);
    refresh();
}

void qxVariantsModel::setSearch(const QString &text)
{
    m_words = text.split(' ', Qt::SkipEmptyParts);
    refresh();
}

qxVariantName qxVariantsModel::nameAt(const QModelIndex &index) const
{
    const Above above = Above::of(index.internalId());
    const qxVariantRows::Variant *const variant = m_rows.variantAt(above, index.row());
    return {&qxVariantRows::kindAt(variant ? above.kind : index.row()),
            variant ? variant->name : QString()};
}

qxVariant *qxVariantsModel::variantAt(const QModelIndex &index) const
{
    if (!index.isValid())
        return nullptr;
    const qxVariantName name = nameAt(index);
    return name.kind->find(name.name);
}

QString qxVariantsModel::optionAt(const QModelIndex &index) const
{
    const qxVariantRows::Option *const option =
        index.isValid() ? m_rows.optionAt(Above::of(index.internalId()), index.row()) : nullptr;
    return option ? option->name : QString();
}

QStringList qxVariantsModel::optionsBeside(const QModelIndex &index) const
{
    QStringList options;
    const QModelIndex above = index.parent();
    for (int row = 0; row < rowCount(above); ++row) {
        const QString option = optionAt(this->index(row, NameColumn, above));
        if (!option.isEmpty())
            options << option;
    }
    return options;
}

QModelIndex qxVariantsModel::indexOf(const qxVariantKind &kind, const QString &variant) const
{
    const int above = qxVariantRows::rowOf(kind);
    const int row = m_rows.rowOf(above, variant);
    return row < 0 ? QModelIndex() : createIndex(row, NameColumn, Above{above}.number());
}

QModelIndex qxVariantsModel::indexOf(const qxVariantName &variant, const QString &option) const
{
    const QModelIndex above = indexOf(*variant.kind, variant.name);
    if (option.isEmpty())
        return above;
    const int states = rowCount(above);
    for (int row = 0; row < states; ++row) {
        const QModelIndex state = index(row, NameColumn, above);
        if (optionAt(state) == option)
            return state;
        for (int action = 0; action < rowCount(state); ++action) {
            if (optionAt(index(action, NameColumn, state)) == option)
                return index(action, NameColumn, state);
        }
    }
    return QModelIndex();
}

void qxVariantsModel::retranslate()
{
    refreshStates();
    showAnew(QModelIndex());
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

QModelIndex qxVariantsModel::index(int row, int column, const QModelIndex &parent) const
{
    if (!hasIndex(row, column, parent))
        return QModelIndex();
    if (!parent.isValid())
        return createIndex(row, column, Above().number());
    const Above above = Above::of(parent.internalId());
    Above below = above;
    if (above.kind < 0)
        below.kind = parent.row();
    else if (above.variant < 0)
        below.variant = parent.row();
    else
        below.isActions = true;
    return createIndex(row, column, below.number());
}

QModelIndex qxVariantsModel::parent(const QModelIndex &index) const
{
    const Above above = Above::of(index.internalId());
    if (!index.isValid() || above.kind < 0)
        return QModelIndex();
    if (above.variant < 0)
        return createIndex(above.kind, NameColumn, Above().number());
    if (!above.isActions)
        return createIndex(above.variant, NameColumn, Above{above.kind}.number());
    const int row = m_rows.variantsOf(above.kind)[std::size_t(above.variant)].states;
    return createIndex(row, NameColumn, Above{above.kind, above.variant}.number());
}

int qxVariantsModel::rowCount(const QModelIndex &parent) const
{
    if (!parent.isValid())
        return qxVariantRows::kindCount();
    return parent.column() > 0 ? 0
                               : m_rows.countBelow(Above::of(parent.internalId()), parent.row());
}

QVariant qxVariantsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Above above = Above::of(index.internalId());
    if (above.kind < 0)
        return index.column() == NameColumn ? kindData(index.row(), role) : QVariant();
    if (above.variant < 0)
        return variantData(above.kind, *m_rows.variantAt(above, index.row()), index.column(), role);
    if (const qxVariantRows::Option *const option = m_rows.optionAt(above, index.row()))
        return optionData(index, *option, role);
    if (role == Qt::FontRole)
        return fontWith(false, true);
    return role == Qt::DisplayRole && index.column() == NameColumn ? tr("Actions") : QVariant();
}

QVariant qxVariantsModel::kindData(int kind, int role) const
{
    if (role == Qt::DisplayRole)
        return QStringLiteral("%1 (%2)")
            .arg(QCoreApplication::translate("qxVariants", qxVariantRows::kindAt(kind).title))
            .arg(m_rows.variantsOf(kind).size());
    return role == Qt::FontRole ? fontWith(true, false) : QVariant();
}

QVariant qxVariantsModel::variantData(int kind, const qxVariantRows::Variant &variant, int column,
                                      int role) const
{
    if (column == NameColumn && (role == Qt::DisplayRole || role == Qt::EditRole))
        return variant.name;
    if (role != Qt::DisplayRole && role != Qt::ToolTipRole)
        return QVariant();
    const qxVariantKind &itsKind = qxVariantRows::kindAt(kind);
    const QString &state = currentOf(kind, variant);
    const qxVariant *const found = itsKind.find(variant.name);
    if (role == Qt::DisplayRole)
        return qxStateWords::shown(itsKind, found, state);
    const QString tip = qxStateWords::toolTip(itsKind, found, state);
    // In a narrow dock the name stands for both. A tool tip would take names for markup.
    return column == StateColumn
        ? tip
        : Qt::convertFromPlainText(variant.name, Qt::WhiteSpaceNormal) + tip;
}

QVariant qxVariantsModel::optionData(const QModelIndex &index, const qxVariantRows::Option &option,
                                     int role) const
{
    const Above above = Above::of(index.internalId());
    const qxVariantRows::Variant &variant = *m_rows.variantAt(above, index.row());
    const qxVariantKind &kind = qxVariantRows::kindAt(above.kind);
    const bool isCurrent = currentOf(above.kind, variant) == option.name;
    if (role == CurrentRole)
        return isCurrent;
    if (role == ActionRole)
        return option.isAction;
    if (role == Qt::EditRole)
        return option.name;
    if (role == Qt::ToolTipRole)
        return qxStateWords::toolTip(kind, kind.find(variant.name), option.name);
    if (role == Qt::FontRole)
        return fontWith(isCurrent, option.isAction);
    if (role != Qt::DisplayRole)
        return QVariant();
    return index.column() == NameColumn
        ? qxStateWords::shown(kind, kind.find(variant.name), option.name)
        : qxKeyText::shown(option.shortcut);
}

QVariant qxVariantsModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QVariant();
    return section == NameColumn ? tr("Variant") : tr("State");
}

/// What the module understands by itself, such as "!Next", has no other name.
Qt::ItemFlags qxVariantsModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags flags = QAbstractItemModel::flags(index);
    const Above above = Above::of(index.internalId());
    if (!index.isValid() || above.kind < 0)
        return flags;
    const qxVariantRows::Option *const option = m_rows.optionAt(above, index.row());
    if (above.variant < 0)
        return flags | Qt::ItemIsDragEnabled | Qt::ItemIsDropEnabled | Qt::ItemIsEditable;
    if (!option)
        return flags | Qt::ItemIsDropEnabled;
    const qxVariantKind &kind = qxVariantRows::kindAt(above.kind);
    const bool isName = qxStateWords::shown(kind, nullptr, option->name) == option->name;
    flags.setFlag(Qt::ItemIsEditable, isName);
    return flags | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
}

bool qxVariantsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    const QString name = value.toString();
    if (role != Qt::EditRole || name == index.data(Qt::EditRole).toString())
        return false;
    Q_EMIT renameWanted(nameAt(index), optionAt(index), name);
    return true;
}

QStringList qxVariantsModel::mimeTypes() const
{
    QMimeData data;
    qxDragData::setStates(data, {});
    return data.formats();
}

QMimeData *qxVariantsModel::mimeData(const QModelIndexList &indexes) const
{
    std::vector<qxDraggedState> states;
    for (const QModelIndex &index : indexes) {
        const qxVariantName variant = nameAt(index);
        if (index.column() == NameColumn && flags(index).testFlag(Qt::ItemIsDragEnabled))
            states.push_back({variant.kind, variant.name, optionAt(index)});
    }
    auto *const data = new QMimeData;
    qxDragData::setStates(*data, states);
    return data;
}

/// The order of the options below `parent` after dropping some of them at the row; empty when
/// something else was dragged.
QStringList qxVariantsModel::droppedAt(const QMimeData &data, int row,
                                       const QModelIndex &parent) const
{
    const QModelIndex first = index(0, NameColumn, parent);
    if (optionAt(first).isEmpty())
        return QStringList();
    const QStringList options = optionsBeside(first);
    const qxVariantName variant = nameAt(first);
    QStringList moved;
    for (const qxDraggedState &each : qxDragData::statesOf(data)) {
        if (each.kind != variant.kind || each.variant != variant.name
            || !options.contains(each.state))
            return QStringList();
        moved << each.state;
    }
    QStringList order;
    for (int place = 0; place <= options.size() && !moved.isEmpty(); ++place) {
        if (place == (row < 0 ? options.size() : qMin(row, options.size())))
            order += moved;
        if (place < options.size() && !moved.contains(options[place]))
            order << options[place];
    }
    return order;
}

bool qxVariantsModel::canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int,
                                      const QModelIndex &parent) const
{
    return action == Qt::MoveAction && !droppedAt(*data, row, parent).isEmpty();
}

bool qxVariantsModel::dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int,
                                   const QModelIndex &parent)
{
    const QStringList order = droppedAt(*data, row, parent);
    if (action != Qt::MoveAction || order.isEmpty())
        return false;
    Q_EMIT orderWanted(nameAt(index(0, NameColumn, parent)), order);
    return true;
}

const QString &qxVariantsModel::currentOf(int kind, const qxVariantRows::Variant &variant) const
{
    if (!variant.isCurrentKnown) {
        const qxVariant *const found = qxVariantRows::kindAt(kind).find(variant.name);
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
    m_rows.read(m_words);
    QModelIndexList moved;
    for (const Place &place : places)
        moved.append(indexOf(place));
    changePersistentIndexList(kept, moved);
    Q_EMIT layoutChanged();
}

qxVariantsModel::Place qxVariantsModel::placeOf(const QModelIndex &index) const
{
    return {nameAt(index), optionAt(index),
            m_rows.isActions(Above::of(index.internalId()), index.row()), index.column()};
}

QModelIndex qxVariantsModel::indexOf(const Place &place) const
{
    QModelIndex found;
    if (place.variant.name.isEmpty())
        found = index(qxVariantRows::rowOf(*place.variant.kind), NameColumn, QModelIndex());
    else
        found = indexOf(place.variant, place.option);
    if (place.isActions && found.isValid()) {
        const int last = rowCount(found) - 1;
        found = last >= 0 && rowCount(index(last, NameColumn, found)) > 0
            ? index(last, NameColumn, found)
            : QModelIndex();
    }
    return found.sibling(found.row(), place.column);
}

void qxVariantsModel::refreshStates()
{
    for (int kind = 0; kind < qxVariantRows::kindCount(); ++kind) {
        for (const qxVariantRows::Variant &variant : m_rows.variantsOf(kind))
            variant.isCurrentKnown = false;
        const QModelIndex above = index(kind, NameColumn, QModelIndex());
        for (int row = 0; row < rowCount(above); ++row)
            showAnew(index(row, NameColumn, above));
        showAnew(above);
    }
}

void qxVariantsModel::showAnew(const QModelIndex &parent)
{
    if (const int count = rowCount(parent))
        Q_EMIT dataChanged(index(0, NameColumn, parent), index(count - 1, StateColumn, parent));
}
