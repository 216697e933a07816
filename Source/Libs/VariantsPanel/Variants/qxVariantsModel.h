#pragma once

#include <QAbstractItemModel>
#include <QHash>

#include <vector>

class qxPanelEvents;
class qxVariant;
struct qxVariantKind;

/// The variants by kind with their options: three levels of kind, variant and option; columns for
/// the name and for the current state (of a variant) or the shortcut (of an option).
class qxVariantsModel : public QAbstractItemModel {
    Q_OBJECT

public:
    enum Column { NameColumn, StateColumn, ColumnCount };
    enum Role {
        CurrentRole = Qt::UserRole, ///< bool: the option is the current state
        ActionRole ///< bool: the option is an action such as "!Next"
    };

    explicit qxVariantsModel(qxPanelEvents *events, QObject *parent = nullptr);

    /// The variant of a row or of its parent row; null for a kind and for a removed variant.
    qxVariant *variantAt(const QModelIndex &index) const;
    /// The name of the option of a row; empty for other rows.
    QString optionAt(const QModelIndex &index) const;
    QModelIndex indexOf(const qxVariantKind &kind, const QString &variant) const;
    /// Call it after a change of language: views update all texts.
    void retranslate();

    QModelIndex index(int row, int column, const QModelIndex &parent) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent) const override;
    int columnCount(const QModelIndex &) const override { return ColumnCount; }
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Option {
        QString name;
        QString shortcut;
        bool isAction;
    };
    struct Variant {
        QString name;
        std::vector<Option> options;
        mutable QString current; ///< what the scene shows, when known
        mutable bool isCurrentKnown = false;
    };

    struct Kind {
        std::vector<Variant> variants;
        QHash<QString, int> rows; ///< of the variants, by name
    };

    /// The place of a row by names, which stays valid when rows change.
    struct Place {
        int kind;
        QString variant;
        QString option;
        int column;
    };

    void refresh();
    void readVariants();
    const std::vector<Variant> &variantsOf(int kind) const
    {
        return m_kinds[std::size_t(kind)].variants;
    }
    QModelIndex indexOf(int kind, const QString &variant) const;
    Place placeOf(const QModelIndex &index) const;
    QModelIndex indexOf(const Place &place) const;
    void refreshStates();
    void showAnew(const QModelIndex &parent);
    const QString &currentOf(int kind, const Variant &variant) const;
    QVariant kindData(int kind, int role) const;
    QVariant variantData(int kind, const Variant &variant, int column, int role) const;
    QVariant optionData(int kind, const Variant &variant, int row, const QModelIndex &index,
                        int role) const;

    std::vector<Kind> m_kinds; ///< in the order of qxVariantKinds::all
};
