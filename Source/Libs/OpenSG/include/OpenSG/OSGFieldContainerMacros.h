#pragma once

#include <OpenSG/OSGConfig.h>

/// \file
/// What every container class repeats. A class writes `OSG_FIELD_CONTAINER_DECL(XPtr)` in its
/// public part and declares `static FieldContainerType _type` and `friend class FieldContainer`;
/// its header ends with `OSG_FIELD_CONTAINER_INL_DEF(X, XPtr)`; its source defines `_type` and says
/// `OSG_FIELD_CONTAINER_DEF(X, XPtr)`. The `ABSTR` forms are for classes without objects of their
/// own.

/// Type access of an abstract class.
#define OSG_ABSTR_FIELD_CONTAINER_DECL(PTR) \
public: \
    static osg::FieldContainerType &getClassType() \
    { \
        return _type; \
    } \
    static osg::UInt32 getClassTypeId() \
    { \
        return _type.getId(); \
    } \
    osg::FieldContainerType &getType() override; \
    const osg::FieldContainerType &getType() const override;

#define OSG_ABSTR_FIELD_CONTAINER_INL_DEF(CLASS, PTR)

#define OSG_ABSTR_FIELD_CONTAINER_DEF(CLASS, PTR) \
    osg::FieldContainerType &CLASS::getType() \
    { \
        return _type; \
    } \
    const osg::FieldContainerType &CLASS::getType() const \
    { \
        return _type; \
    }

/// Type access and creation. create() copies the prototype, createEmpty() default-constructs.
#define OSG_FIELD_CONTAINER_DECL(PTR) \
    OSG_ABSTR_FIELD_CONTAINER_DECL(PTR) \
    static PTR create(); \
    static PTR createEmpty(); \
    osg::UInt32 getContainerSize() const override; \
    osg::FieldContainerPtr shallowCopy() const override;

#define OSG_FIELD_CONTAINER_INL_DEF(CLASS, PTR) \
    inline PTR CLASS::create() \
    { \
        return osg::FieldContainer::createFrom<PTR>(_type); \
    } \
    inline PTR CLASS::createEmpty() \
    { \
        return osg::FieldContainer::createDefault<PTR>(); \
    }

#define OSG_FIELD_CONTAINER_DEF(CLASS, PTR) \
    OSG_ABSTR_FIELD_CONTAINER_DEF(CLASS, PTR) \
    osg::UInt32 CLASS::getContainerSize() const \
    { \
        return sizeof(CLASS); \
    } \
    osg::FieldContainerPtr CLASS::shallowCopy() const \
    { \
        return osg::FieldContainer::copyOf(*this); \
    }

/// The private end of a container class: field table, type, and the friend that builds objects.
#define OSG_CONTAINER_STATICS \
private: \
    friend class FieldContainer; \
    static FieldDescription *_desc[]; \
    static FieldContainerType _type;

/// A field that holds one value: mask, accessors and member `_sfNAME`; the second form with the
/// values to construct its default from.
#define OSG_SF(FIELD, NAME) \
    OSG_SF_ACCESS(FIELD, NAME) \
    FIELD _sf##NAME;

#define OSG_SF_INIT(FIELD, NAME, ...) \
    OSG_SF_ACCESS(FIELD, NAME) \
    FIELD _sf##NAME{FIELD::ValueType(__VA_ARGS__)};

#define OSG_SF_ACCESS(FIELD, NAME) \
public: \
    static const BitVector NAME##FieldMask; \
    FIELD *getSF##NAME() \
    { \
        return &_sf##NAME; \
    } \
    FIELD::ValueType &get##NAME() \
    { \
        return _sf##NAME.getValue(); \
    } \
    const FIELD::ValueType &get##NAME() const \
    { \
        return _sf##NAME.getValue(); \
    } \
    void set##NAME(const FIELD::ValueType &value) \
    { \
        _sf##NAME.setValue(value); \
    } \
\
protected:

/// A field that holds a list: mask, accessors and member `_mfNAME`.
#define OSG_MF(FIELD, NAME) \
public: \
    static const BitVector NAME##FieldMask; \
    FIELD *getMF##NAME() \
    { \
        return &_mf##NAME; \
    } \
    FIELD &get##NAME() \
    { \
        return _mf##NAME; \
    } \
    const FIELD &get##NAME() const \
    { \
        return _mf##NAME; \
    } \
    FIELD::reference get##NAME(const UInt32 index) \
    { \
        return _mf##NAME[index]; \
    } \
\
protected: \
    FIELD _mf##NAME;

/// The masks, defined in a source: not constant expressions for clients.
#define OSG_FIELD_MASK(CLASS, NAME) \
    const BitVector CLASS::NAME##FieldMask = TypeTraits<BitVector>::One << CLASS::NAME##FieldId;

/// Entries of the field table.
#define OSG_SF_DESC(CLASS, NAME, TEXT, INTERNAL) \
    new FieldDescription(decltype(CLASS::_sf##NAME)::getClassType(), TEXT, CLASS::NAME##FieldId, \
                         CLASS::NAME##FieldMask, INTERNAL, (FieldAccessMethod)&CLASS::getSF##NAME)
#define OSG_MF_DESC(CLASS, NAME, TEXT, INTERNAL) \
    new FieldDescription(decltype(CLASS::_mf##NAME)::getClassType(), TEXT, CLASS::NAME##FieldId, \
                         CLASS::NAME##FieldMask, INTERNAL, (FieldAccessMethod)&CLASS::getMF##NAME)

/// Id and mask of an attachment's field, as two arguments.
#define OSG_FC_FIELD_IDM_DESC(NAME) NAME##Id, NAME##Mask
