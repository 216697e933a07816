#pragma once

class qxLossReport;
class qxVariantSet;

/// Tells what becomes of the entries of sets in a page.
namespace qxPublishedLosses {

/// Adds each entry of the set that selecting it in the program would heed, in their order.
void add(const qxVariantSet &set, qxLossReport &losses);

} // namespace qxPublishedLosses
