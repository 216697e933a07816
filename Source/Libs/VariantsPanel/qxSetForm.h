#pragma once

#include <QWidget>

#include <functional>

class QComboBox;
class QKeySequenceEdit;
class QLabel;
class QPlainTextEdit;
class QTableWidget;
class QToolButton;
class qxPanelEvents;
class qxSetEdits;
class qxVariantSet;

/// Shows and edits what a set holds beside its states: comment, key, default viewpoint, script and
/// values. Each edit is taken over when its field is left, and can be undone.
class qxSetForm : public QWidget {
    Q_OBJECT

public:
    qxSetForm(qxPanelEvents *events, qxSetEdits *edits, QWidget *parent = nullptr);

    /// Shows the set of that name; nothing for an empty or unknown one.
    void showSet(const QString &name);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildFields();
    QWidget *buildHotkeyLine();
    void layFieldsOut();
    void retranslate();
    void refresh();
    void showContents(const qxVariantSet &set);
    void showViewpoints(const QString &chosen);
    void showValues(const qxVariantSet &set);
    void takeTexts();
    void takeText(QPlainTextEdit *field, const QString &what, QString qxVariantSet::*text);
    void takeHotkey();
    void takeViewpoint();
    void takeValues();
    /// Edits the shown set unless that would change nothing.
    void edit(const QString &what, const std::function<bool(const qxVariantSet &)> &isSame,
              const std::function<void(qxVariantSet &)> &change);

    qxSetEdits *m_edits;
    QString m_set;
    QLabel *m_contents;
    QPlainTextEdit *m_comment;
    QKeySequenceEdit *m_hotkey;
    QToolButton *m_noHotkey;
    QComboBox *m_viewpoint;
    QPlainTextEdit *m_script;
    QTableWidget *m_values;
    QList<QPair<QLabel *, const char *>> m_labels; ///< with texts to be translated
};
