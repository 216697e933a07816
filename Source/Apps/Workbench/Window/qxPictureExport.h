#pragma once

#include "Session/qxSetPreviews.h"

#include <QObject>

#include <functional>

class qxPublisher;
class qxSession;
class qxVariantSetsDock;
struct qxPictureWish;

/// Writes pictures, sheets, catalogues and web pages that the user asks for, as the commands
/// "render", "catalogue" and "publish" make them. It shows the progress; when the user cancels,
/// nothing is written. Scene, camera and selection are as before.
class qxPictureExport : public QObject {
    Q_OBJECT

public:
    /// `scenePath` tells the path of the scene's file, which may be empty.
    qxPictureExport(QWidget *window, qxSession &session, qxVariantSetsDock *sets,
                    const std::function<QString()> &scenePath);

    ///@{
    /// Ask for what is needed, and for the file.
    void savePicture();
    void saveSheet();
    void exportCatalogue();
    void exportPage();
    ///@}

Q_SIGNALS:
    /// What was written, as a sentence for the user.
    void done(const QString &sentence);

private:
    QString askForFile(const QString &title, const QString &suffix, const QStringList &filters);
    QByteArray picture(const qxPictureWish &wish, const QString &file);
    bool takeAll(const QSize &size, int quality, const qxSetPreviews::Take &take);
    void write(const QString &file, const QByteArray &bytes);
    /// That the file is saved, or why it cannot be written.
    void showResult(const QString &file, const QString &flaw);
    void showProblem(const QString &what, const QString &reason);

    bool publish(qxPublisher &publisher);

    QWidget *m_window;
    qxSession &m_session;
    qxVariantSetsDock *m_sets;
    std::function<QString()> m_scenePath;
};
