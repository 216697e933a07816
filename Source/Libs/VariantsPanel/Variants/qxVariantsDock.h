#pragma once

#include <OpenSG/OSGNode.h>

#include <QDockWidget>

#include <functional>
#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QStackedWidget;
class QTabWidget;
class QToolButton;
class QUndoStack;
class qxNoVariants;
class qxPanelEvents;
class qxVariantActions;
class qxVariantForm;
class qxVariantMaker;
class qxVariantUses;
class qxVariantsModel;
class qxVariantsView;
struct qxVariantKind;

/// The dock "Variants": all variants by kind with their states, keys and actions. It makes variants
/// of the scene, edits them, and puts them into sets.
///
/// A double click or Enter selects an option; connected variants of a set are highlighted on
/// request. It needs only HostApi.
class qxVariantsDock : public QDockWidget {
    Q_OBJECT

public:
    /// Tells nodes of the scene.
    typedef std::function<std::vector<osg::NodePtr>()> Nodes;

    /// A dock for any main window of Qt, which shows the variants of the registry. Its edits are
    /// steps of the stack, that of the sets' dock, which must outlive this.
    explicit qxVariantsDock(QUndoStack *steps, QWidget *parent = nullptr);

    /// The actions on variants, for the menu of a window.
    const QList<QAction *> &variantActions() const;
    /// Tells which nodes of the scene the user has selected, for making variants of them.
    void setSelectedNodes(const Nodes &nodes);
    /// The set that variants are added to without asking for one; none for an empty name.
    void setCurrentSet(const QString &set);
    ///@{
    /// Selects the variant, or its option, in the dock; nothing for an unknown one.
    void showVariant(const qxVariantKind &kind, const QString &variant);
    void showOption(const qxVariantKind &kind, const QString &variant, const QString &option);
    ///@}

Q_SIGNALS:
    /// An option is about to be selected by the user.
    void aboutToSelect();
    ///@{
    /// The user wants to see that set, or that node.
    void setWanted(const QString &set);
    void nodeWanted(const osg::NodePtr &node);
    ///@}

protected:
    ///@{
    /// Qt calls these.
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    ///@}

private:
    void buildContents();
    QWidget *buildTopLine();
    QWidget *buildDetails();
    void connectParts();
    void retranslate();
    void search();
    void showFound();
    void followCurrent();
    void followUses();
    void followVariants();
    void selectOption();
    void highlight(const qxVariantKind &kind, const QStringList &names);
    void tell(const QString &what);

    qxPanelEvents *m_events;
    qxVariantsModel *m_model;
    qxVariantMaker *m_maker;
    qxVariantsView *m_view;
    qxVariantForm *m_form;
    qxVariantUses *m_uses;
    qxNoVariants *m_nothing;
    qxVariantActions *m_actions;
    QStackedWidget *m_pages; ///< the tree with the form, or what can be done without variants
    QLineEdit *m_search;
    QLabel *m_found; ///< how many variants the search finds
    QLabel *m_note; ///< what came of the last edit
    QToolButton *m_new;
    QTabWidget *m_details; ///< of the current variant
};
