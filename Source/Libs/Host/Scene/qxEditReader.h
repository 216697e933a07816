#pragma once

#include <OpenSG/OSGChangeList.h>
#include <OpenSG/OSGFieldContainerPtr.h>

#include <functional>

/// Reads what was edited in the scene graph since it was read last, so that what was derived from
/// the scene can follow. Edits outside of brackets are not seen.
///
/// The change list may be emptied by anyone at any time. To notice it, the reader leaves a mark of
/// its own at the end of the list: an entry for the given object whose mask names no field.
class qxEditReader {
public:
    typedef std::function<void(osg::UInt32 id, osg::BitVector mask)> Visit;

    /// Calls `visit` for each edit since the last call, in order. False when edits may have been
    /// missed - the first time, after the list was emptied, or while it does not record.
    bool read(const osg::FieldContainerPtr &marked, const Visit &visit);

private:
    osg::ChangeList::ChangeEntry m_mark;
    osg::UInt32 m_serial = 0;
    osg::UInt32 m_position = 0; ///< behind the mark; 0 before the first call
};
