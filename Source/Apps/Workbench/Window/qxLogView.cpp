#include "qxLogView.h"

#include "Script/qxScriptRunner.h"
#include "qxText.h"

#include <QEvent>
#include <QFontDatabase>
#include <QTextBlock>

#include <algorithm>

namespace {

const int keptLines = 5000;

QTextCharFormat formatOf(qxLog::Level level, const QPalette &palette)
{
    const bool isDark = palette.base().color().lightness() < 128;
    QTextCharFormat format; // Without a colour it has that of the palette.
    if (level == qxLog::Error)
        format.setForeground(isDark ? QColor(255, 120, 110) : QColor(190, 20, 20));
    if (level == qxLog::Warning)
        format.setForeground(isDark ? QColor(240, 190, 90) : QColor(160, 95, 0));
    return format;
}

} // namespace

qxLogView::qxLogView(QWidget *parent) : QPlainTextEdit(parent)
{
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setMaximumBlockCount(keptLines);
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    retranslate();
    m_listener = qxLog::addListener([this](qxLog::Level level, const std::string &text) {
        const QString line = qxText::fromUtf8(text);
        // Threads that render report as well.
        QMetaObject::invokeMethod(this, [this, level, line] { append(level, line); });
    });
    qxScriptRunner::setOutput([](const std::string &line) { qxLog::info("%s", line.c_str()); });
}

qxLogView::~qxLogView()
{
    qxScriptRunner::setOutput(stdout);
    qxLog::removeListener(m_listener);
}

void qxLogView::append(qxLog::Level level, const QString &line)
{
    setCurrentCharFormat(formatOf(level, palette()));
    appendPlainText(line);
    document()->lastBlock().setUserState(int(level));
    if (level == qxLog::Error)
        Q_EMIT errorLogged(line);
}

void qxLogView::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    if (event->type() == QEvent::PaletteChange)
        recolour();
}

/// For another theme.
void qxLogView::recolour()
{
    for (QTextBlock line = document()->begin(); line.isValid(); line = line.next()) {
        QTextCursor cursor(line);
        cursor.select(QTextCursor::BlockUnderCursor);
        cursor.setCharFormat(formatOf(qxLog::Level(std::max(0, line.userState())), palette()));
    }
}

void qxLogView::retranslate()
{
    setPlaceholderText(tr("Nothing was reported."));
}
