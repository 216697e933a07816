#pragma once

class qxMaterialVariant;

/// Makes sure that the scene has the switch material that a material variant drives. Older
/// documents kept variants whose material was an ordinary one.
namespace qxSwitchMaterialRepair {

/// Does nothing when a switch material of the name exists. Otherwise a new one, made of the
/// materials that the options name, takes the place of the ordinary material of that name; when
/// there is none either, it takes the place of the material that its name is built from ("Paint
/// Switch").
void ensureSwitchMaterial(const qxMaterialVariant &variant);

} // namespace qxSwitchMaterialRepair
