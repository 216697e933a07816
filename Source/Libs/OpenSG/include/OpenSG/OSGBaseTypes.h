#pragma once

#include <OpenSG/OSGConfig.h>

#include <cstddef>
#include <cstdint>

namespace osg {

/// Numbers by their size in bits.
typedef std::uint8_t UInt8;
typedef std::uint16_t UInt16;
typedef std::uint32_t UInt32;
typedef std::uint64_t UInt64;
typedef std::int8_t Int8;
typedef std::int16_t Int16;
typedef std::int32_t Int32;
typedef std::int64_t Int64;
typedef float Real32;
typedef double Real64;
/// Characters of a text in UTF-8, and plain bytes.
typedef char Char8;
typedef unsigned char UChar8;

/// Seconds.
typedef Real64 Time;

/// A set of fields of one container class: bit n stands for the field with id n.
typedef UInt64 BitVector;

/// Constants of a number type, for code that names the type by parameter.
template <class ValueT>
struct TypeTraits {
    static constexpr ValueT One = ValueT(1);
    static constexpr ValueT Zero = ValueT(0);
    /// No bits and all bits, for whole numbers.
    static constexpr ValueT BitsClear = ValueT(0);
    static constexpr ValueT BitsSet = ValueT(~ValueT(0));
};

/// Field sets that mean the same for every container class.
struct FieldBits {
    static constexpr BitVector NoField = 0;
    static constexpr BitVector AllFields = ~BitVector(0);
};

/// Who caused a change; handed on to FieldContainer::changed().
struct ChangedOrigin {
    /// External: by a user of the library. Child: passed on by a part of the object.
    enum Origin { Abstract = 1, Sync = 2, Child = 4, External = 8 };
};

} // namespace osg
