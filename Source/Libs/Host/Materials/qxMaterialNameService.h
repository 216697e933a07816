#pragma once

/// Finds names for new materials: replies to "MaterialGetUniqueName" while it lives (see
/// qxMaterials).
class qxMaterialNameService {
public:
    qxMaterialNameService();
    qxMaterialNameService(const qxMaterialNameService &) = delete;
    ~qxMaterialNameService();
};
