#pragma once

#include "Undo/qxVariantEdits.h"

#include <QTreeView>

class qxVariantsModel;

/// The tree of the variants. Kinds without variants have no row, and names have their room before
/// states: in a narrow view these get less, or none.
class qxVariantsView : public QTreeView {
    Q_OBJECT

public:
    explicit qxVariantsView(qxVariantsModel *rows);

    ///@{
    /// The variant of the current row, and its option; no name, and an empty option, when there is
    /// none.
    qxVariantName currentVariant() const;
    QString currentOption() const;
    ///@}
    /// The variants that are selected, not those of which only options are.
    qxVariantEdits::Variants selectedVariants() const;
    /// The states that the selection stands for: that of a variant is empty.
    qxVariantEdits::States selectedStates() const;
    /// The selected options of the current variant, in the order in which they are shown.
    QStringList selectedOptions() const;

    /// Selects these variants alone, the first becomes current; those that are not shown are left
    /// out.
    void showVariants(const qxVariantEdits::Variants &variants);
    /// The same for an option; for its variant when it has no such option.
    void showOption(const qxVariantName &variant, const QString &option);

Q_SIGNALS:
    /// Another row is current, or it has changed.
    void currentMoved();
    /// Other rows are selected.
    void selectionMoved();

protected:
    ///@{
    /// Qt calls these.
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void selectionChanged(const QItemSelection &selected,
                          const QItemSelection &deselected) override;
    ///@}

private:
    void shareWidth();
    void hideEmptyKinds();
    QModelIndexList selectedRows() const;
    void setCurrent(const QModelIndex &index);

    qxVariantsModel *m_rows;
};
