#include "qxLogView.h"

#include "Script/qxScriptRunner.h"
#include "qxText.h"

#include <QEvent>
#include <QFontDatabase>

namespace {

const int keptLines = 5000;

QColor colorOf(qxLog::Level level, const QPalette &palette)
{
    const bool isDark = palette.base().color().lightness() < 128;
    switch (level) {
    case qxLog::Error:
        return isDark ? QColor(255, 120, 110) : QColor(190, 20, 20);
    case qxLog::Warning:
        return isDark ? QColor(240, 190, 90) : QColor(160, 95, 0);
    default:
        return palette.text().color();
    }
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
    QTextCharFormat format;
    format.setForeground(colorOf(level, palette()));
    setCurrentCharFormat(format);
    appendPlainText(line);
    if (level == qxLog::Error)
        Q_EMIT errorLogged(line);
}

void qxLogView::changeEvent(QEvent *event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void qxLogView::retranslate()
{
    setPlaceholderText(tr("Nothing was reported."));
}
