#pragma once

#include "qxVariantRows.h"

#include <QAbstractItemModel>

class qxPanelEvents;

/// The variants by kind with their states and actions; columns for the name and for the current
/// state (of a variant) or the hotkey (of an option). States are shown in words; tool tips have
/// them as the document holds them.
///
/// Variants and options are dragged with qxDragData; dropped within a variant, options are put in
/// another order.
class qxVariantsModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { NameColumn, StateColumn, ColumnCount };
    enum Role {
        CurrentRole = Qt::UserRole, ///< bool: the option is the current state
        ActionRole ///< bool: the option is an action such as "!Next"
    };

    explicit qxVariantsModel(qxPanelEvents *events, QObject *parent = nullptr);

    /// Shows only variants with each word of the text in their names or those of their options.
    void setSearch(const QString &text);
    /// How many variants are shown.
    int variantCount() const { return m_rows.count(); }

    /// The kind and the variant of a row or of a row above it. The name is empty for a kind.
    qxVariantName nameAt(const QModelIndex &index) const;
    /// That variant; null for a kind and for a removed variant.
    qxVariant *variantAt(const QModelIndex &index) const;
    /// The name of the option of a row; empty for other rows.
    QString optionAt(const QModelIndex &index) const;
    /// The options of the row above, in the order in which they are shown.
    QStringList optionsBeside(const QModelIndex &index) const;
    ///@{
    /// The row of a variant, or of one of its options unless that is empty; invalid for one that is
    /// not shown.
    QModelIndex indexOf(const qxVariantKind &kind, const QString &variant) const;
    QModelIndex indexOf(const qxVariantName &variant, const QString &option) const;
    ///@}
    /// Call it after a change of language: views update all texts.
    void retranslate();

    QModelIndex index(int row, int column, const QModelIndex &parent) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent) const override;
    int columnCount(const QModelIndex &) const override { return ColumnCount; }
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDragActions() const override
    {
        return Qt::CopyAction | Qt::MoveAction;
    }
    Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
    bool canDropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                         const QModelIndex &parent) const override;
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;

Q_SIGNALS:
    /// The user has given a variant, or its option unless that is empty, a new name.
    void renameWanted(const qxVariantName &variant, const QString &option, const QString &name);
    /// The user wants the options of a variant, some or all, in this order.
    void orderWanted(const qxVariantName &variant, const QStringList &options);

private:
    typedef qxVariantRows::Above Above;

    /// The place of a row by names, which stays valid when rows change.
    struct Place {
        qxVariantName variant;
        QString option;
        bool isActions;
        int column;
    };

    void refresh();
    void refreshStates();
    Place placeOf(const QModelIndex &index) const;
    QModelIndex indexOf(const Place &place) const;
    void showAnew(const QModelIndex &parent);
    const QString &currentOf(int kind, const qxVariantRows::Variant &variant) const;
    QVariant kindData(int kind, int role) const;
    QVariant variantData(int kind, const qxVariantRows::Variant &variant, int column,
                         int role) const;
    QVariant optionData(const QModelIndex &index, const qxVariantRows::Option &option,
                        int role) const;
    QStringList droppedAt(const QMimeData &data, int row, const QModelIndex &parent) const;

    qxVariantRows m_rows;
    QStringList m_words; ///< of the search
};
