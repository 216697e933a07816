#pragma once

#include "Files/Gltf/Common/qxGltfJson.h"
#include "Files/qxExport.h"

/// Leaves out of an export what only this program understands, and what it does not understand
/// itself.
class qxGltfTidy {
public:
    qxGltfTidy(qxExportOptions::Extent extent, qxExport &result)
        : m_extent(extent), m_result(result)
    {
    }

    /// Takes extras and extensions out of the object and of those in it.
    void clean(qxJson &object);
    /// The extras of an object of the file as far as they are exported; null for none.
    qxJson extras(const qxJson &object) const;
    /// Tells of an extension of the file that it is left out, if it is.
    void leaveOut(const QString &name);

private:
    qxExportOptions::Extent m_extent;
    qxExport &m_result;
};

/// Sets name and extras of a new object of the export to those of one of the file.
void qxGltfDescribe(qxJson &object, const qxJson &from, const qxGltfTidy &tidy);
/// Lists the extensions that the objects of an export use; those of `required`, too, as required.
void qxGltfListExtensions(qxJson &json, const std::vector<std::string> &required);
