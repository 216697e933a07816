#pragma once

#include <QByteArray>

/// Documents with sets of many entries, for the switches of a qxBenchScene.
namespace qxBenchDocument {

constexpr int Variants = 2000;
constexpr int EntriesOfASet = 200;

/// The sets of so many hundreds of entries: 10,000 of them are 5,000 sets.
int setsOf(int hundreds);
/// Which variant an entry of a set refers to, and which child it chooses.
int variantOf(int set, int entry);
int childOf(int set, int entry);

/// The element of a variant of four states.
QByteArray variantText(int number);
/// A document with so many sets, no two of which are equal, and all variants.
QByteArray ofSets(int sets);

} // namespace qxBenchDocument
