#pragma once

#include <QPlainTextEdit>
#include <QStringList>

/// A prompt of the host's script interpreter: what was typed and printed so far, and a field for
/// the next statement.
///
/// Enter runs the statement. An incomplete one, after a colon or an open bracket, gets another
/// line, and an empty line ends it. Up and Down recall earlier statements, Tab completes names and
/// leaves an empty field.
class qxScriptConsole : public QWidget {
    Q_OBJECT

public:
    explicit qxScriptConsole(QWidget *parent = nullptr);

    QPlainTextEdit *input() const { return m_input; }
    QPlainTextEdit *output() const { return m_output; }

Q_SIGNALS:
    /// A statement is about to run.
    void aboutToRun();
    /// A statement ran, successfully or not.
    void statementRan();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void retranslate();
    void enter();
    void recall(int step);
    void complete();
    void print(const QString &text, bool isTyped);

    QPlainTextEdit *m_output;
    QPlainTextEdit *m_input;
    QStringList m_history;
    int m_recalled = 0; ///< index in m_history; its size for the text being typed
    QString m_typed; ///< the text being typed, while older statements are shown
};
