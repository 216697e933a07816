#pragma once

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerPtr.h>

#include <cstddef>
#include <functional>

/// Reads the edits of the scene graph since the last call, to update data derived from the scene.
/// Edits outside of brackets are not seen.
///
/// Anyone may empty the change list at any time. To detect that, the reader puts a mark at the end
/// of the list: an entry for the given object with an empty field mask.
class qxEditReader {
public:
    /// Receives what happened: first each edit, in order, then each destruction.
    struct Follower {
        std::function<void(osg::UInt32 id, osg::BitVector mask)> edited;
        std::function<void(osg::UInt32 id)> destroyed;
    };

    /// Reports the edits since the last call to `follower`. False if some may be missing: the first
    /// time, or after the list was emptied. Edits while the list does not record are missed without
    /// notice.
    bool read(const osg::FieldContainerPtr &marked, const Follower &follower);

private:
    osg::ChangeList::ChangeEntry m_mark;
    osg::UInt32 m_serial = 0;
    std::ptrdiff_t m_position = 0; ///< behind the mark; 0 before the first call
    std::ptrdiff_t m_destroyed = 0; ///< how many destructions were seen
};
