#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"

/// The number as JSON: its shortest decimal form that reads back exactly. What is no finite number
/// becomes 0, or the largest one.
qxJson qxGltfNumber(float number);
qxJson qxGltfNumberList(const float *begin, std::size_t count);
/// Notes that the file uses the extension.
void qxGltfUseExtension(qxJson &document, const char *extension);
/// Takes the extension out of an object.
void qxGltfEraseExtension(qxJson &object, const char *extension);
/// Puts `value` under `key` of the node's extras, or takes the entry out when it is null.
/// Extras that hold no entries, such as a text, become an entry until ours are gone.
void qxGltfSetExtra(qxJson &node, const char *key, const qxJson &value);
