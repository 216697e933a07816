#include "qxScriptConsole.h"

#include "Script/qxPrompt.h"
#include "qxController.h"
#include "qxKeyHints.h"

#include <QFontDatabase>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QTextBlock>
#include <QVBoxLayout>

namespace {

QString commonStart(const QStringList &names)
{
    QString start = names.value(0);
    for (const QString &name : names) {
        while (!name.startsWith(start))
            start.chop(1);
    }
    return start;
}

} // namespace

qxScriptConsole::qxScriptConsole(QWidget *parent)
    : QWidget(parent), m_output(new QPlainTextEdit), m_input(new QPlainTextEdit)
{
    const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    for (QPlainTextEdit *field : {m_output, m_input})
        field->setFont(font);
    m_output->setReadOnly(true);
    m_output->setMinimumHeight(3 * m_output->fontMetrics().lineSpacing());
    m_output->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    m_output->setMaximumBlockCount(5000);
    m_input->setFixedHeight(4 * m_input->fontMetrics().lineSpacing());
    m_input->installEventFilter(this);
    setFocusProxy(m_input);
    auto *const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_output, 1);
    layout->addWidget(m_input);
    retranslate();
}

void qxScriptConsole::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        retranslate();
}

void qxScriptConsole::retranslate()
{
    m_input->setPlaceholderText(tr("Python, such as: selectVariantSet(\"...\")"));
    m_input->setAccessibleName(tr("Statement"));
    m_output->setAccessibleName(tr("What was typed and printed"));
    const auto shown = [](int key) { return QKeySequence(key).toString(QKeySequence::NativeText); };
    qxKeyHints::tell(*m_input,
                     {{shown(Qt::Key_Return), tr("Run the statement")},
                      {shown(Qt::SHIFT + Qt::Key_Return), tr("Add a line")},
                      {shown(Qt::Key_Up) + QStringLiteral(", ") + shown(Qt::Key_Down),
                       tr("Earlier and later statements")},
                      {shown(Qt::Key_Tab), tr("Complete a name")}});
}

bool qxScriptConsole::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const auto *const key = static_cast<QKeyEvent *>(event);
    const QTextCursor cursor = m_input->textCursor();
    switch (key->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (key->modifiers() & Qt::ShiftModifier)
            return false;
        enter();
        return true;
    case Qt::Key_Up:
        if (cursor.blockNumber() > 0)
            return false;
        recall(-1);
        return true;
    case Qt::Key_Down:
        if (cursor.blockNumber() < m_input->blockCount() - 1)
            return false;
        recall(1);
        return true;
    case Qt::Key_Tab:
        if (m_input->document()->isEmpty())
            return focusNextPrevChild(true);
        complete();
        return true;
    case Qt::Key_Backtab:
        return focusNextPrevChild(false);
    default:
        return false;
    }
}

void qxScriptConsole::enter()
{
    const QString statement = m_input->toPlainText();
    if (statement.trimmed().isEmpty())
        return m_input->clear();
    Q_EMIT aboutToRun();
    qxController::setBusy(true, true);
    const qxPrompt::Answer answer = qxPrompt::run(statement);
    qxController::setBusy(false, true);
    if (answer.isIncomplete)
        return m_input->insertPlainText("\n");
    print(statement.trimmed(), true);
    print(answer.printed, false);
    m_history.removeAll(statement.trimmed());
    m_history.append(statement.trimmed());
    m_recalled = m_history.size();
    m_input->clear();
    Q_EMIT statementRan();
}

void qxScriptConsole::recall(int step)
{
    const int place = m_recalled + step;
    if (place < 0 || place > m_history.size())
        return;
    if (m_recalled == m_history.size())
        m_typed = m_input->toPlainText();
    m_recalled = place;
    m_input->setPlainText(m_history.value(place, m_typed));
    m_input->moveCursor(QTextCursor::End);
}

void qxScriptConsole::complete()
{
    QTextCursor cursor = m_input->textCursor();
    const QString before = cursor.block().text().left(cursor.positionInBlock());
    static const QRegularExpression path(QStringLiteral("[\\w.]*$"));
    const QString word = path.match(before).captured();
    if (word.isEmpty())
        return m_input->insertPlainText(QStringLiteral("    "));
    const QStringList names = qxPrompt::completions(word);
    const QString start = commonStart(names);
    if (start.size() > word.size())
        return m_input->insertPlainText(start.mid(word.size()));
    if (names.size() > 1)
        print(names.join(QStringLiteral("  ")), false);
}

void qxScriptConsole::print(const QString &text, bool isTyped)
{
    if (text.isEmpty())
        return;
    QTextCharFormat format;
    format.setFontWeight(isTyped ? QFont::Bold : QFont::Normal); // Colours follow the theme.
    m_output->setCurrentCharFormat(format);
    const QString shown = isTyped ? ">>> " + QString(text).replace("\n", "\n... ") : text.trimmed();
    m_output->appendPlainText(shown);
}
