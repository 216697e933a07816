#pragma once

#include "Repair/qxBreak.h"

/// Small helpers of the search for what names may have become.
namespace qxRepairNames {

/// The names that a path is made of.
QStringList stepsOf(const QString &path);
/// How much two lists of names have in common, from 0 to 1; order does not count.
double overlap(const QStringList &one, const QStringList &other);
/// How many of the names are among the others, from 0 to 1.
double part(const QStringList &names, const QStringList &others);
/// The place of an option among those that are no actions; -1 for none.
int placeOf(const qxDocumentVariant &variant, const QString &option);
/// The options that are no actions.
QStringList optionsOf(const qxDocumentVariant &variant);
/// Whether two names differ by no more than numbers, so that they rather are two of a series than
/// one and the same. A series has one style: "A.001" may well be what "A" has become.
bool areOfSeries(const QString &was, const QString &is);
/// The factor for such a candidate.
constexpr double OfSeries = 0.6;
/// Leaves of each name the best, the few best, the best first; drops those without any reason, and
/// the name that is broken itself.
void sort(std::vector<qxRepairCandidate> &candidates, const QString &broken);

} // namespace qxRepairNames
