#pragma once

#include <QList>
#include <QSet>
#include <QString>

class QAction;
class QMainWindow;
class QMenu;
class QWidget;

/// All keys of a window, as they are now: those of menus, panes, sets and options, and what the
/// mouse does. They are read from the actions, the widgets and the registry.
class qxKeyList {
public:
    /// What one key, or several, do.
    struct Entry {
        QString effect;
        QString keys;
    };
    /// A menu, a pane, or what else has keys.
    struct Section {
        QString title;
        QList<Entry> entries;
    };

    explicit qxKeyList(const QMainWindow &window);

    /// Those with entries: the menus first.
    const QList<Section> &sections() const { return m_sections; }

private:
    void takeMenu(const QMenu &menu, Section &section);
    void takeWidgets(const QMainWindow &window);
    void takeHotkeys();
    void takeAction(const QAction &action, Section &section);
    void add(const Section &section);
    static QString paneOf(const QWidget &widget);

    QList<Section> m_sections;
    QSet<const QAction *> m_seen;
};
