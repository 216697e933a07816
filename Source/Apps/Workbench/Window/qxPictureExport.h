#pragma once

#include <QObject>

#include <functional>

class qxVariantSet;
class qxVariantSetsDock;
struct qxPictureWish;

/// Writes pictures, sheets and catalogues that the user asks for, as the commands "render" and
/// "catalogue" make them. It shows the progress; when the user cancels, nothing is written. Scene,
/// camera and selection are as before.
class qxPictureExport : public QObject {
    Q_OBJECT

public:
    /// `scenePath` tells the path of the scene's file, which may be empty.
    qxPictureExport(QWidget *window, qxVariantSetsDock *sets,
                    const std::function<QString()> &scenePath);

    ///@{
    /// Ask for what is needed, and for the file.
    void savePicture();
    void saveSheet();
    void exportCatalogue();
    ///@}

Q_SIGNALS:
    /// What was written, as a sentence for the user.
    void done(const QString &sentence);

private:
    QString askForFile(const QString &title, const QString &suffix, const QStringList &filters);
    QByteArray picture(const qxPictureWish &wish, const QString &file);
    bool visitAll(const std::function<bool(qxVariantSet &set)> &work, int quality);
    void write(const QString &file, const QByteArray &bytes);
    void showProblem(const QString &what, const QString &reason);

    QWidget *m_window;
    qxVariantSetsDock *m_sets;
    std::function<QString()> m_scenePath;
};
