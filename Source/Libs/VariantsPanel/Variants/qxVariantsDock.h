#pragma once

#include <QDockWidget>

class QModelIndex;
class QTreeView;
class QUndoStack;
class qxPanelEvents;
class qxVariantsModel;
struct qxVariantKind;

/// The dock "Variants": all variants by kind with their options, shortcuts and actions. A double
/// click or Enter selects an option; connected variants of a set are highlighted on request.
class qxVariantsDock : public QDockWidget {
    Q_OBJECT

public:
    /// A dock for any main window of Qt, which shows the variants of the registry. Its edits are
    /// steps of the stack, that of the sets' dock, which must outlive this.
    explicit qxVariantsDock(QUndoStack *steps, QWidget *parent = nullptr);

    /// Leads the user to this variant.
    void showVariant(const qxVariantKind &kind, const QString &variant);

Q_SIGNALS:
    /// An option is about to be selected by the user.
    void aboutToSelect();

protected:
    /// Qt calls this.
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void selectOption(const QModelIndex &index);
    void highlight(const qxVariantKind &kind, const QStringList &names);

    QUndoStack *m_steps;
    qxPanelEvents *m_events;
    qxVariantsModel *m_model;
    QTreeView *m_view;
};
