#pragma once

#include "Undo/qxVariantEdits.h"

#include <QObject>

class QMenu;
class QWidget;

/// Makes variants as users want them: of all that varies in the scene, of what they choose from a
/// list, of the nodes that they have selected.
class qxVariantMaker : public QObject {
    Q_OBJECT

public:
    typedef std::function<std::vector<osg::NodePtr>()> Selection;

    /// Things of the scene that vary and have no variant yet.
    struct Offer {
        const qxVariantKind *kind; ///< never null
        QString things; ///< how many of what, such as "3 switches"
    };

    /// Dialogs belong to the window of `place`.
    qxVariantMaker(QUndoStack *steps, QWidget *place);

    /// Who tells which nodes are selected; nobody tells that at first.
    void setSelection(const Selection &selection) { m_selection = selection; }
    /// Goes over the scene.
    static std::vector<Offer> offers();

    /// A menu that offers, whenever it is opened, what the scene has.
    QMenu *menu();
    void makeOfAll(const qxVariantKind &kind);
    /// Lets the user choose of what.
    void makeOfChosen(const qxVariantKind &kind);
    void makeOfSelected(const qxVariantKind &kind);

Q_SIGNALS:
    void made(const qxVariantEdits::Created &created);

private:
    void fill(QMenu &menu);
    void fillForSelected(QMenu &menu);

    QUndoStack &m_steps;
    QWidget *m_place;
    Selection m_selection;
};
