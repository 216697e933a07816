#pragma once

#include <OpenSG/OSGMatrix.h>

#include <QByteArray>
#include <QCryptographicHash>

#include <array>
#include <cstdint>
#include <type_traits>
#include <vector>

/// Gathers values into a short text that differs when they do, the same one on every machine. It is
/// no proof against forgers.
class qxDigest {
public:
    /// Whole numbers, enumerators, truths, numbers, colours, vectors and matrices. 0 and -0 are
    /// the same.
    template <class... Values>
    void add(const Values &...values)
    {
        (addOne(values), ...);
    }
    /// All values of a list, and their number.
    template <class Value>
    void addAll(const std::vector<Value> &values)
    {
        addOne(std::uint32_t(values.size()));
        for (const Value &value : values)
            addOne(value);
    }
    void addBytes(const void *bytes, std::size_t count);

    /// 40 hexadecimal digits. Nothing may be added afterwards.
    QByteArray result();

private:
    void addWord(std::uint32_t word);
    void addOne(float value);
    void addOne(const QByteArray &bytes);
    void addOne(const osg::Matrix &matrix);
    template <class Value>
    void addOne(const Value &value)
    {
        if constexpr (std::is_integral_v<Value> || std::is_enum_v<Value>) {
            static_assert(sizeof(Value) <= sizeof(std::uint32_t), "the rest would be lost");
            addWord(std::uint32_t(value));
        } else {
            for (std::size_t i = 0; i < sizeof(Value) / sizeof(value[0]); ++i)
                addOne(value[osg::UInt32(i)]);
        }
    }
    void flush();

    QCryptographicHash m_hash{QCryptographicHash::Sha1};
    std::array<char, 4096> m_waiting;
    std::size_t m_count = 0; ///< of the bytes that wait
};
