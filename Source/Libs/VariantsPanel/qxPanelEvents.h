#pragma once

#include <QObject>
#include <QStringList>

class qxMessage;
struct qxVariantKind;

/// The module's notifications and qxPanelChanges, as signals for the views.
///
/// They are collected: however many come in one turn of the event loop, each signal is sent once,
/// after them. Until then pointers to sets, groups and variants may be dangling, so views keep
/// names.
class qxPanelEvents : public QObject {
    Q_OBJECT

public:
    ///@{
    /// Listens to module and panel as long as it lives.
    explicit qxPanelEvents(QObject *parent = nullptr);
    ~qxPanelEvents() override;
    ///@}

    /// Sends the collected signals now.
    void flush();

Q_SIGNALS:
    /// The scene is about to be cleared. Sent at once.
    void aboutToForget();
    /// Sets or groups were added, removed or edited.
    void setsChanged();
    /// Variants were added, removed or edited.
    void variantsChanged();
    /// The scene may show other states than before.
    void statesChanged();
    /// This set was selected last.
    void setSelected(const QString &name);
    /// Views are to highlight these variants.
    void variantsHighlighted(const qxVariantKind &kind, const QStringList &names);

private:
    enum Pending { Nothing = 0, Sets = 1, Variants = 2, States = 4, Selected = 8 };

    void hear(const QByteArray &name, const qxMessage *message);
    void gather(int what);

    int m_listener = 0;
    int m_pending = Nothing;
    QString m_selected;
};
