#pragma once

#include <QByteArray>

#include <cstdint>
#include <string>
#include <vector>

struct qxGltfModel;

/// The elements of an accessor, one directly after the other.
struct qxGltfPacked {
    QByteArray bytes; ///< null when all elements are zero
    int type = 0; ///< of a component, as the file states it
    std::string shape; ///< such as "VEC3"
    bool isNormalized = false;
    qint64 count = 0; ///< of elements

    /// Those of an accessor, sparse ones in place. Throws qxGltfError when the data are not there.
    static qxGltfPacked of(const qxGltfModel &model, int accessor);
    /// Floats with so many components, up to four, or sixteen.
    static qxGltfPacked of(const std::vector<float> &values, int components);
    /// Unsigned integers of two bytes, or of four where one is above 65534.
    static qxGltfPacked of(const std::vector<std::uint32_t> &indices);

    int components() const;
    int componentSize() const;
    int elementSize() const { return components() * componentSize(); }
    /// All components; normalised integers as numbers from -1 or 0 to 1.
    std::vector<float> floats() const;
    /// These numbers as the present type has them.
    void setFloats(const std::vector<float> &values);
};
