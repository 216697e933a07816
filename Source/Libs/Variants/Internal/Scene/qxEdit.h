#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

/// Holds one scene-graph object open for editing, for exactly one scope, so that the change list
/// records the fields that were written.
template <class Ptr>
class qxEdit {
public:
    /// Without `fields` the whole object is open.
    explicit qxEdit(const Ptr &object, osg::BitVector fields = osg::FieldBits::AllFields)
        : m_object(object), m_fields(fields)
    {
        osg::beginEditCP(m_object, m_fields);
    }
    ~qxEdit() { osg::endEditCP(m_object, m_fields); }
    qxEdit(const qxEdit &) = delete;
    qxEdit &operator=(const qxEdit &) = delete;

private:
    const Ptr m_object;
    const osg::BitVector m_fields;
};
