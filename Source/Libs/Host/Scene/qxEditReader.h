#pragma once

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerPtr.h>

#include <cstddef>
#include <functional>

/// Reads what was edited in the scene graph since it was read last, so that what was derived from
/// the scene can follow. Edits outside of brackets are not seen.
///
/// The change list may be emptied by anyone at any time. To notice it, the reader leaves a mark of
/// its own at the end of the list: an entry for the given object whose mask names no field.
class qxEditReader {
public:
    /// Receives what happened: first each edit, in order, then each destruction.
    struct Follower {
        std::function<void(osg::UInt32 id, osg::BitVector mask)> edited;
        std::function<void(osg::UInt32 id)> destroyed;
    };

    /// Tells `follower` what happened since the last call. False when something may have been
    /// missed - the first time, or after the list was emptied. What is edited while the list does
    /// not record is missed in silence.
    bool read(const osg::FieldContainerPtr &marked, const Follower &follower);

private:
    osg::ChangeList::ChangeEntry m_mark;
    osg::UInt32 m_serial = 0;
    std::ptrdiff_t m_position = 0; ///< behind the mark; 0 before the first call
    std::ptrdiff_t m_destroyed = 0; ///< how many destructions were seen
};
