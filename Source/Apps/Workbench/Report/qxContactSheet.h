#pragma once

#include <QImage>
#include <QList>
#include <QString>

/// Pictures side by side on one sheet, each with its name below it.
class qxContactSheet {
public:
    /// For pictures of that size in pixels.
    explicit qxContactSheet(const QSize &size) : m_size(size) {}

    void add(const QImage &picture, const QString &name) { m_entries += Entry{picture, name}; }
    /// The sheet, as nearly square as whole rows allow.
    QByteArray png() const;

private:
    struct Entry {
        QImage picture;
        QString name;
    };

    int columns() const;
    QRect cell(int number) const;

    QSize m_size;
    QList<Entry> m_entries;
};
