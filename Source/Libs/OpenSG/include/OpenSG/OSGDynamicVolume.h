#pragma once

#include <OpenSG/OSGVolume.h>

namespace osg {

/// The volume that a node keeps of itself.
class DynamicVolume : public Volume {
public:
    bool operator==(const DynamicVolume &other) const
    {
        Pnt3f lo, hi, otherLo, otherHi;
        getBounds(lo, hi);
        other.getBounds(otherLo, otherHi);
        return isEmpty() == other.isEmpty() && lo == otherLo && hi == otherHi;
    }
};

} // namespace osg
