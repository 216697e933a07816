#pragma once

#include <QKeySequence>
#include <QWidget>

#include <functional>

class QComboBox;
class QKeySequenceEdit;
class QLabel;
class QPlainTextEdit;
class QToolButton;
class qxPanelEvents;
class qxProblems;
class qxSetContents;
class qxSetEdits;
class qxTakenKeys;
class qxValuesTable;
class qxVariantSet;

/// Shows and edits what a set holds, its comment, hotkey, default viewpoint, script and values. An
/// edit takes effect when its field is left, and can be undone.
class qxSetForm : public QWidget {
    Q_OBJECT

public:
    qxSetForm(qxPanelEvents *events, qxSetEdits *edits, qxTakenKeys *taken);

    /// Shows the set of that name; nothing for an empty or unknown one.
    void showSet(const QString &name);
    /// The same for a group, which has only a comment.
    void showGroup(const QString &name);
    /// Where to find what is wrong with what the set holds.
    void setProblems(const qxProblems *problems);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildFields();
    QWidget *buildHotkeyLine();
    void layFieldsOut();
    void retranslate();
    void showTarget(const QString &set, const QString &group);
    void refresh();
    void showContents(const qxVariantSet &set);
    void showViewpoints(const QString &chosen);
    void followRename();
    bool isKeyTyped() const;
    void takeTexts();
    void takeText(QPlainTextEdit *field, const QString &what, QString qxVariantSet::*text);
    void takeGroupComment();
    void takeHotkey();
    void takeViewpoint();
    void takeValues();
    void setValues(const QMap<QString, QString> &values);
    /// Edits the shown set unless that would change nothing.
    void edit(const QString &what, const std::function<bool(const qxVariantSet &)> &isSame,
              const std::function<void(qxVariantSet &)> &change);

    qxSetEdits *m_edits;
    const qxTakenKeys *m_taken;
    QString m_set;
    QString m_group; ///< one of both is empty
    const void *m_object = nullptr; ///< the set or group, perhaps dangling: to detect a rename
    qxSetContents *m_holds;
    QPlainTextEdit *m_comment;
    QKeySequenceEdit *m_hotkey;
    QKeySequence m_shownKey; ///< what the set has
    QToolButton *m_noHotkey;
    QComboBox *m_viewpoint;
    QPlainTextEdit *m_script;
    qxValuesTable *m_values;
    bool m_isValuesTableOpen = false; ///< it holds an invalid edit
    QLabel *m_keyNote;
    QLabel *m_valuesNote;
    QList<QPair<QLabel *, const char *>> m_labels; ///< with texts to be translated
};
