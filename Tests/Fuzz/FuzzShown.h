#pragma once

#include <QString>
#include <QStringList>

/// The variants of the registry, of all kinds, at work on the scene.
namespace FuzzShown {

/// Each variant with its kind and the state that the scene shows, in the order of the registry.
QStringList states();
/// Makes variants of everything in the scene that can vary.
void createVariants();
/// Puts each variant into one of its states; `choice` says which.
void selectStates(unsigned choice);
/// Selects the sets one after the other, in full, with their defaults in between.
void selectSets();

} // namespace FuzzShown
