#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

/// The files that a page refers to: beside it, or within the page itself.
class qxPageFiles {
public:
    enum Place { Beside, Within };

    explicit qxPageFiles(Place place) : m_place(place) {}
    Place place() const { return m_place; }

    /// Adds one, and returns how the page refers to it: relative to itself, with a sum of the
    /// content, so that browsers never mix files of two publications; or as a data URI of the type
    /// that the name's suffix stands for.
    QString add(const QString &name, const QByteArray &bytes);

    typedef QPair<QString, QByteArray> File; ///< its name and content
    /// Those beside the page, in the order in which they were added.
    const QList<File> &files() const { return m_files; }

private:
    Place m_place;
    QList<File> m_files;
};
