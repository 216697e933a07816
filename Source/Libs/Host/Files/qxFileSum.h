#pragma once

#include <QByteArray>

/// What tells one content of a file from another: its size, and a hash. The bytes are added in
/// pieces of any size.
class qxFileSum {
public:
    /// The next bytes.
    void add(const QByteArray &bytes);
    ///@{
    /// Of what was added; the hash does not depend on the pieces.
    qint64 size() const { return m_size; }
    std::size_t hash() const;
    ///@}

private:
    qint64 m_size = 0;
    std::size_t m_hash = 0; ///< of all whole blocks
    QByteArray m_rest; ///< less than a block
};
