#pragma once

#include "qxMaterialPtr.h"
#include "qxNodePtr.h"

#include <OpenSG/OSGFieldContainerFactory.h>

#include <string>

/// A script's handle on a scene object; it becomes null when the object is destroyed.
template <class Pointer>
class qxScriptHandle {
public:
    qxScriptHandle() {}
    /// `sought` is the name or path that the object was looked up by.
    qxScriptHandle(const Pointer &object, const std::string &sought)
        : m_object(object), m_id(object == osg::NullFC ? 0 : object.getFieldContainerId()),
          m_sought(sought)
    {
    }

    /// The object, null if there is none or it was destroyed.
    Pointer get() const { return isNull() ? Pointer() : m_object; }
    operator Pointer() const { return get(); }
    bool isNull() const
    {
        return m_id == 0 || osg::FieldContainerFactory::the()->getContainer(m_id) == osg::NullFC;
    }
    unsigned int id() const { return isNull() ? 0 : m_id; }
    const std::string &sought() const { return m_sought; }

private:
    Pointer m_object;
    unsigned int m_id = 0;
    std::string m_sought;
};

typedef qxScriptHandle<qxNodePtr> qxScriptNode;
typedef qxScriptHandle<qxMaterialPtr> qxScriptMaterial;
