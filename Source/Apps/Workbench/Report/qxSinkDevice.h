#pragma once

#include "Files/qxOutputFile.h"

#include <QIODevice>

/// Gives what is written to it to a sink, in pieces of some size; the last one with flush.
class qxSinkDevice : public QIODevice {
public:
    explicit qxSinkDevice(const qxOutputFile::Sink &sink);

    void flush();

protected:
    qint64 readData(char *, qint64) override { return -1; }
    qint64 writeData(const char *bytes, qint64 size) override;

private:
    const qxOutputFile::Sink m_sink;
    QByteArray m_piece;
};
