#include "Render/qxDigest.h"

#include <QtEndian>

#include <cstring>

void qxDigest::addWord(std::uint32_t word)
{
    if (m_count + sizeof(word) > m_waiting.size())
        flush();
    qToLittleEndian(word, &m_waiting[m_count]);
    m_count += sizeof(word);
}

void qxDigest::addOne(float value)
{
    const float plain = value == 0.0f ? 0.0f : value;
    std::uint32_t word;
    std::memcpy(&word, &plain, sizeof(word));
    addWord(word);
}

void qxDigest::addOne(const QByteArray &bytes)
{
    addWord(std::uint32_t(bytes.size()));
    addBytes(bytes.constData(), std::size_t(bytes.size()));
}

void qxDigest::addOne(const osg::Matrix &matrix)
{
    for (int i = 0; i < 16; ++i)
        addOne(matrix.getValues()[i]);
}

void qxDigest::addBytes(const void *bytes, std::size_t count)
{
    flush();
    const char *at = static_cast<const char *>(bytes);
    const std::size_t most = 1 << 30;
    for (; count > most; count -= most, at += most)
        m_hash.addData(at, int(most));
    m_hash.addData(at, int(count));
}

void qxDigest::flush()
{
    m_hash.addData(m_waiting.data(), int(m_count));
    m_count = 0;
}

QByteArray qxDigest::result()
{
    flush();
    return m_hash.result().toHex();
}
