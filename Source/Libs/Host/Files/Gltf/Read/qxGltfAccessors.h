#pragma once

#include <cstdint>
#include <vector>

struct qxGltfModel;

/// All components of all elements; normalised integers as numbers from -1 or 0 to 1, sparse
/// elements in place. Throws qxGltfError when the data are not there.
std::vector<float> qxGltfFloats(const qxGltfModel &model, int accessor);
/// The elements of a scalar accessor of unsigned integers. Throws qxGltfError as above.
std::vector<std::uint32_t> qxGltfIndices(const qxGltfModel &model, int accessor);
