#pragma once

#include <QObject>
#include <QPixmap>
#include <QStringList>

class QMenu;

/// The files that were opened or saved last, the newest first, each with a picture of its document.
/// The settings of the program keep the list, the user's cache the pictures.
class qxRecentFiles : public QObject {
    Q_OBJECT

public:
    explicit qxRecentFiles(QObject *parent = nullptr);

    QStringList paths() const;
    /// Puts the file first, with the preview of the first set that has one.
    void remember(const QString &path);
    /// Takes the file out of the list; the file itself stays.
    void remove(const QString &path);
    /// Null for a file whose document has no preview.
    QPixmap pictureOf(const QString &path) const;
    /// Fills a menu with the files; those that are missing cannot be chosen.
    void fill(QMenu &menu);

Q_SIGNALS:
    void changed();
    /// The user has chosen this file in a menu.
    void chosen(const QString &path);

private:
    static QString picturePath(const QString &path);
};
