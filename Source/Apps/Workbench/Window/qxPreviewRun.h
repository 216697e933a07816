#pragma once

#include <QObject>
#include <QStringList>

#include <functional>
#include <memory>

class qxAnimationRest;
class qxPictureJob;
struct qxPicture;

/// Makes previews of sets, one after the other, in the background: the window can be used
/// meanwhile, and what moves in its view comes first. Each set is selected only for the moment in
/// which the scene is read; animations rest as long as the run takes.
///
/// The pictures are those of the command "previews": from the first viewpoint, unless the set leads
/// elsewhere, in best quality, in the light of the window.
class qxPreviewRun : public QObject {
    Q_OBJECT

public:
    /// Does something that announces selections nobody wants to see.
    typedef std::function<void(const std::function<void()> &work)> Quietly;

    explicit qxPreviewRun(const Quietly &quietly, QObject *parent = nullptr);
    ~qxPreviewRun() override;

    /// Makes previews of these sets, after those that it still has to make.
    void start(const QStringList &sets);
    /// Ends the run; previews that exist stay.
    void cancel();
    bool isRunning() const { return !m_waiting.isEmpty(); }

Q_SIGNALS:
    /// So many of all previews of this run are done.
    void progressed(int done, int total);
    /// The set has this picture.
    void made(const QString &set, const QByteArray &picture);
    /// The run has ended, be it because it was cancelled.
    void ended();

private:
    void placeOrder();
    std::unique_ptr<qxPictureJob> begin();
    void take(const qxPicture &picture);
    void finish();

    Quietly m_quietly;
    std::unique_ptr<qxAnimationRest> m_rest; ///< while it runs
    QStringList m_waiting; ///< sets, the present one first
    QByteArray m_fingerprint; ///< of the present one
    int m_done = 0;
};
