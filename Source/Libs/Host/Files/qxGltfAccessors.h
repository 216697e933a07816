#pragma once

#include <cstdint>
#include <vector>

struct qxGltfModel;

/// How many components an element of the accessor has: 1 for SCALAR, 3 for VEC3 and so on.
int qxGltfComponents(const qxGltfModel &model, int accessor);
/// All components of all elements; normalised integers as numbers from -1 or 0 to 1, sparse
/// elements in place. Throws qxGltfError when the data are not there.
std::vector<float> qxGltfFloats(const qxGltfModel &model, int accessor);
/// The elements of a scalar accessor of unsigned integers. Throws qxGltfError as above.
std::vector<std::uint32_t> qxGltfIndices(const qxGltfModel &model, int accessor);
