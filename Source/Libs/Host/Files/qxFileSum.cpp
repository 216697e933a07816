#include "Files/qxFileSum.h"

#include <functional>
#include <string_view>

namespace {

const int summedAtOnce = 1 << 16;
const std::size_t factor = 1099511628211u; ///< as FNV-1a has it

std::size_t folded(std::size_t hash, const char *block, int size)
{
    return (hash ^ std::hash<std::string_view>()({block, std::size_t(size)})) * factor;
}

} // namespace

void qxFileSum::add(const QByteArray &bytes)
{
    m_size += bytes.size();
    int at = 0;
    if (!m_rest.isEmpty()) {
        at = qMin(summedAtOnce - m_rest.size(), bytes.size());
        m_rest.append(bytes.constData(), at);
        if (m_rest.size() < summedAtOnce)
            return;
        m_hash = folded(m_hash, m_rest.constData(), summedAtOnce);
    }
    for (; bytes.size() - at >= summedAtOnce; at += summedAtOnce)
        m_hash = folded(m_hash, bytes.constData() + at, summedAtOnce);
    m_rest = bytes.mid(at);
}

std::size_t qxFileSum::hash() const
{
    return folded(m_hash, m_rest.constData(), m_rest.size());
}
