#pragma once

#include "qxLinter.h"

#include <QObject>
#include <QTimer>

#include <memory>

class qxPanelEvents;
class qxRegistryLint;
struct qxVariantKind;

/// What the linter finds in the sets and variants of the registry beside the present scene.
///
/// It follows changes while the program is idle, and looks only at what has changed: findings are
/// current a moment after an edit, not at once.
class qxProblems : public QObject {
    Q_OBJECT

public:
    /// `compile` says what is wrong with a script; `events` must outlive this.
    qxProblems(qxPanelEvents *events, const qxLinter::Compile &compile, QObject *parent = nullptr);
    ~qxProblems() override;

    /// All findings, first of sets, then of variants, up to a thousand of each code. They are as
    /// they were when changed() was last sent.
    const qxFindings &all() const { return m_all; }
    ///@{
    /// Those of the set with all that it holds, and of the variant with its options.
    qxFindings ofSet(const QString &set) const;
    qxFindings ofVariant(const qxVariantKind &kind, const QString &variant) const;
    ///@}
    /// Those of just that place, such as one entry of a set.
    qxFindings of(const qxFindingPlace &place) const;

    /// What was found, in the language of the window; what it belongs to is not said again.
    static QString textOf(const qxFinding &finding);

    /// Whether nothing has changed since all was looked at, as far as that is known.
    bool isCurrent() const;
    /// Looks at everything that may have changed now, rather than when the program is idle.
    void update();
    /// Call it when nodes, materials, viewpoints or animations may have changed without a
    /// notification, such as by a script.
    void lookAtScene();

Q_SIGNALS:
    /// The findings are others than before.
    void changed();

private:
    void lookAgain();
    void goOn();
    void tell();

    std::unique_ptr<qxRegistryLint> m_lint;
    QTimer m_soon; ///< begins when edits pause
    QTimer m_idle;
    qxFindings m_all;
};
