#pragma once

#include "Files/qxFileText.h"

#include <nlohmann/json.hpp>

/// The JSON of a scene file. Members keep their order, so that saving does not change it.
typedef nlohmann::ordered_json qxJson;

/// Why a scene file cannot be read or written, without the file's name.
class qxGltfError {
public:
    explicit qxGltfError(const QString &reason) : m_reason(reason) {}
    const QString &reason() const { return m_reason; }

private:
    QString m_reason;
};

/// The objects of a top-level list such as "nodes"; an empty list when the file has none.
const qxJson &qxGltfSection(const qxJson &document, const char *name);
/// The member of that name, or null (a JSON null) when `object` is no object or has none.
const qxJson &qxGltfMember(const qxJson &object, const char *name);
/// Where something is inside of an object.
typedef qxJson::json_pointer qxGltfPlace;
/// What is there, or null (a JSON null) when there is nothing.
const qxJson &qxGltfAt(const qxJson &object, const qxGltfPlace &place);
/// A non-negative integer member such as an index or a count, -1 when there is none.
/// Only for documents that qxGltfCheck accepted.
int qxGltfIndex(const qxJson &object, const char *name);

/// How messages call an entry of a list: its kind, its number and, when it has one, its name.
QString qxGltfLabel(const char *kind, int index, const qxJson &entry);
/// The same for a primitive of the mesh `index`.
QString qxGltfPrimitiveLabel(int index, const qxJson &mesh, int primitive);

/// The number as JSON: its shortest decimal form that reads back exactly. What is no finite number
/// becomes 0, or the largest one.
qxJson qxGltfNumber(float number);
qxJson qxGltfNumberList(const float *begin, std::size_t count);
/// Notes that the file uses the extension.
void qxGltfUseExtension(qxJson &document, const char *extension);
/// Takes the extension out of an object.
void qxGltfEraseExtension(qxJson &object, const char *extension);
