#pragma once

#include <OpenSG/OSGFieldContainerPtr.h>

namespace osg {

/// An edit bracket that lasts for one scope.
class CPEditor {
public:
    /// Begins the edit. Null is ignored.
    explicit CPEditor(const FieldContainerPtr &object, BitVector fields = FieldBits::AllFields)
        : m_object(object), m_fields(fields)
    {
        beginEditCP(m_object, m_fields);
    }
    CPEditor(const CPEditor &) = delete;
    void operator=(const CPEditor &) = delete;
    /// Ends it.
    ~CPEditor() { endEditCP(m_object, m_fields); }

private:
    FieldContainerPtr m_object;
    BitVector m_fields;
};

} // namespace osg

/// Opens a bracket to the end of the scope. The variable must be a plain identifier.
#define CPEdit(VARIABLE, FIELDS) osg::CPEditor cpEditor_##VARIABLE(VARIABLE, FIELDS)
#define CPEditAll(VARIABLE) osg::CPEditor cpEditor_##VARIABLE(VARIABLE)
