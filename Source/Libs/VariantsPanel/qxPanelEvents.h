#pragma once

#include <QObject>
#include <QStringList>

class qxMessage;

/// The module's notifications and qxPanelChanges, as signals for the views.
///
/// They are gathered: however many come in one turn of the event loop, each signal is sent once,
/// after them. Until then pointers to sets, groups and variants may be dead, so views keep names.
class qxPanelEvents : public QObject {
    Q_OBJECT

public:
    explicit qxPanelEvents(QObject *parent = nullptr);
    ~qxPanelEvents() override;

    /// Sends what is gathered at once.
    void flush();

signals:
    /// The host is about to forget everything, because the scene goes. Sent at once.
    void aboutToForget();
    /// Sets or groups came, went or were edited.
    void setsChanged();
    /// The same of variants.
    void variantsChanged();
    /// The scene may show other states than before.
    void statesChanged();
    /// This set was applied last.
    void setSelected(const QString &name);
    /// The user wants to see these variants; `kind` as in qxVariantsModel.
    void variantsHighlighted(int kind, const QStringList &names);

private:
    enum Pending { Nothing = 0, Sets = 1, Variants = 2, States = 4, Selected = 8 };

    void hear(const QByteArray &name, const qxMessage *message);
    void gather(int what);

    int m_listener = 0;
    int m_pending = Nothing;
    QString m_selected;
};
