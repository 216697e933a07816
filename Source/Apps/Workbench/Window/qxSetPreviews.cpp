#include "qxSetPreviews.h"

#include "qxVariants.h"

#include "Pictures/qxPictureProgress.h"
#include "Session/qxSceneSnapshot.h"

#include <QCoreApplication>
#include <QLabel>
#include <QProgressDialog>

namespace {

const int steps = 100; ///< of one picture

QString text(const char *source)
{
    return QCoreApplication::translate("qxSetPreviews", source);
}

/// Shows the progress of all pictures, in the place of a dialog for each.
class Progress {
public:
    Progress(int count, QWidget *window)
        : m_dialog(QString(), text(QT_TRANSLATE_NOOP("qxSetPreviews", "Cancel")), 0, count * steps,
                   window, Qt::Dialog | Qt::WindowTitleHint),
          m_single(qxPictureProgress::display())
    {
        auto *const label = new QLabel;
        label->setTextFormat(Qt::PlainText);
        m_dialog.setLabel(label);
        m_dialog.setWindowModality(Qt::WindowModal);
        m_dialog.setMinimumDuration(0);
        m_dialog.setAutoReset(false);
        qxPictureProgress::setDisplay([this](double share) { return show(share); });
    }
    Progress(const Progress &) = delete;
    ~Progress() { qxPictureProgress::setDisplay(m_single); }

    /// False when the user has enough.
    bool begin(const QString &set)
    {
        m_dialog.setLabelText(
            text(QT_TRANSLATE_NOOP("qxSetPreviews", "Preview of \"%1\" ...")).arg(set));
        return show(0);
    }
    void end() { ++m_done; }

private:
    bool show(double share)
    {
        m_dialog.setValue(m_done * steps + int(share * steps)); // This lets events through.
        return !m_dialog.wasCanceled();
    }

    QProgressDialog m_dialog;
    qxPictureProgress::Display m_single;
    int m_done = 0;
};

} // namespace

QMap<QString, QByteArray> qxSetPreviews::make(const QStringList &sets, QWidget *window)
{
    QMap<QString, QByteArray> previews;
    const qxSceneSnapshot before;
    Progress progress(sets.size(), window);
    for (const QString &set : sets) {
        if (!progress.begin(set))
            break;
        qxVariants::selectVariantSet(set.toUtf8().constData(), false);
        const QByteArray picture = qxVariants::createPreviewImage(true, true);
        before.restore();
        if (picture.isEmpty()) // cancelled
            break;
        previews[set] = picture;
        progress.end();
    }
    return previews;
}
