#include "qxSinkDevice.h"

#include <utility>

namespace {

constexpr int PieceSize = 1 << 16;

} // namespace

qxSinkDevice::qxSinkDevice(const qxOutputFile::Sink &sink) : m_sink(sink)
{
    open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

void qxSinkDevice::flush()
{
    m_sink(std::exchange(m_piece, QByteArray()));
}

qint64 qxSinkDevice::writeData(const char *bytes, qint64 size)
{
    m_piece.append(bytes, int(size));
    if (m_piece.size() >= PieceSize)
        flush();
    return size;
}
