#include "qxEntrySearch.h"

#include "qxVariant.h"
#include "qxVariantKinds.h"

#include "qxAnimManager.h"
#include "qxPanelEvents.h"
#include "qxSceneLookup.h"
#include "qxText.h"

#include <QAbstractItemView>
#include <QAbstractProxyModel>
#include <QCompleter>
#include <QFocusEvent>
#include <QStringListModel>

#include <set>

std::vector<qxSetEntry> qxEntrySearch::othersToAdd()
{
    std::vector<qxSetEntry> entries;
    for (const QString &name : qxSceneLookup::viewpointNames())
        entries.push_back({qxSetEntry::Viewpoint, nullptr, name, QString()});
    std::set<std::string> clips;
    qxAnimManager::the()->getBlockAndClipNames(clips);
    for (const std::string &clip : clips)
        entries.push_back({qxSetEntry::Animation, nullptr, qxText::fromUtf8(clip), QString()});
    return entries;
}

qxEntrySearch::qxEntrySearch(qxPanelEvents *events) : m_texts(new QStringListModel(this))
{
    setObjectName(QStringLiteral("addEntry"));
    setClearButtonEnabled(true);
    auto *const finder = new QCompleter(m_texts, this);
    finder->setFilterMode(Qt::MatchContains);
    finder->setCaseSensitivity(Qt::CaseInsensitive);
    finder->setMaxVisibleItems(12);
    connect(finder, QOverload<const QModelIndex &>::of(&QCompleter::activated), this,
            [this, finder](const QModelIndex &index) {
                const auto &found =
                    static_cast<const QAbstractProxyModel &>(*finder->completionModel());
                take(found.mapToSource(index).row());
            });
    setCompleter(finder);
    connect(this, &QLineEdit::returnPressed, this, &qxEntrySearch::takeTyped);
    connect(events, &qxPanelEvents::variantsChanged, this, [this] { m_isRead = false; });
    connect(events, &qxPanelEvents::aboutToForget, this, [this] { m_isRead = false; });
}

/// Gathered anew when it is needed: many variants may come and go while nobody looks for one.
void qxEntrySearch::read()
{
    m_entries.clear();
    qxVariantKinds::visit([this](const qxVariantKind &kind, const qxVariant &variant) {
        m_entries.push_back({qxSetEntry::Variant, &kind, variant.name, QString()});
    });
    const std::vector<qxSetEntry> others = othersToAdd();
    m_entries.insert(m_entries.end(), others.begin(), others.end());
    QStringList texts;
    for (const qxSetEntry &each : m_entries)
        texts << QStringLiteral("%1 (%2)").arg(qxSetEntries::nameOf(each),
                                               qxSetEntries::sortOf(each));
    m_texts->setStringList(texts);
    m_isRead = true;
}

void qxEntrySearch::focusInEvent(QFocusEvent *event)
{
    // Viewpoints come without a notification.
    const bool isOwnList = event->reason() == Qt::PopupFocusReason;
    if (!isOwnList || !m_isRead)
        read();
    QLineEdit::focusInEvent(event);
}

void qxEntrySearch::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        m_isRead = false;
}

void qxEntrySearch::take(int found)
{
    if (found < 0 || found >= int(m_entries.size()))
        return;
    Q_EMIT chosen(m_entries[std::size_t(found)]);
    // The line itself takes the text of what was chosen after this.
    QMetaObject::invokeMethod(this, &QLineEdit::clear, Qt::QueuedConnection);
}

/// What is typed in full comes before what only contains it.
void qxEntrySearch::takeTyped()
{
    if (text().isEmpty())
        return;
    if (!m_isRead)
        read();
    int found = m_texts->stringList().indexOf(text());
    for (int i = 0; found < 0 && i < int(m_entries.size()); ++i) {
        if (m_entries[std::size_t(i)].name.compare(text(), Qt::CaseInsensitive) == 0)
            found = i;
    }
    for (int i = 0; found < 0 && i < int(m_entries.size()); ++i) {
        if (m_entries[std::size_t(i)].name.contains(text(), Qt::CaseInsensitive))
            found = i;
    }
    completer()->popup()->hide();
    take(found);
}
