#include <OpenSG/OSGNode.h>

#include <OpenSG/OSGGeometry.h>
#include <OpenSG/OSGNodeCore.h>
#include <OpenSG/OSGSimpleTexturedMaterial.h>

#include <sstream>

namespace osg {

namespace {

/// Copies objects with all they contain, except for contained objects of some types.
class Cloner {
public:
    explicit Cloner(std::string sharedTypes)
    {
        std::replace(sharedTypes.begin(), sharedTypes.end(), ',', ' ');
        std::istringstream names(sharedTypes);
        for (std::string name; names >> name;) {
            if (const FieldContainerType *type =
                    FieldContainerFactory::the()->findType(name.c_str()))
                m_sharedTypes.push_back(type);
        }
    }

    FieldContainerPtr clone(const FieldContainerPtr &original) const;
    NodePtr cloneTree(const NodePtr &original) const;

private:
    bool isShared(const FieldContainerPtr &object) const;
    FieldContainerPtr cloneContained(const FieldContainerPtr &original) const;
    void copyAttachments(AttachmentContainer *from, AttachmentContainer *to) const;
    void copyField(const FieldDescription &field, FieldContainer &from, FieldContainer &to) const;

    std::vector<const FieldContainerType *> m_sharedTypes;
};

bool Cloner::isShared(const FieldContainerPtr &object) const
{
    const FieldContainerType &type = object->getType();
    return std::any_of(
        m_sharedTypes.begin(), m_sharedTypes.end(),
        [&type](const FieldContainerType *shared) { return type.isDerivedFrom(*shared); });
}

FieldContainerPtr Cloner::cloneContained(const FieldContainerPtr &original) const
{
    // Nodes are not contained in what points to them, such as a light in its beacon.
    if (!original || isShared(original) || original->getType().isNode())
        return original;
    return clone(original);
}

FieldContainerPtr Cloner::clone(const FieldContainerPtr &original) const
{
    if (!original)
        return NullFC;
    if (original->getType().isNode())
        return cloneTree(NodePtr::dcast(original));
    const FieldContainerType &type = original->getType();
    if (!type.getPrototype())
        return NullFC;
    const FieldContainerPtr copy = type.getPrototype()->shallowCopy();
    for (UInt32 id = 1; id <= type.getNumFieldDescs(); ++id)
        copyField(*type.getFieldDescription(id), *original, *copy);
    copyAttachments(dynamic_cast<AttachmentContainer *>(original.getCPtr()),
                    dynamic_cast<AttachmentContainer *>(copy.getCPtr()));
    // Lets the copy derive what it keeps beside its fields.
    endEditCP(copy);
    return copy;
}

void Cloner::copyField(const FieldDescription &description, FieldContainer &from,
                       FieldContainer &to) const
{
    if (description.isInternal() || description.getFieldType() == SFAttachmentMap::getClassType())
        return;
    Field *field = description.getField(to);
    field->setAbstrValue(*description.getField(from));
    // This material references its image itself, when the edit ends.
    const bool isCounted = !dynamic_cast<SimpleTexturedMaterial *>(&to)
        || description.getFieldId() != SimpleTexturedMaterial::ImageFieldId;
    for (UInt32 i = 0; i < field->getSize(); ++i) {
        FieldContainerPtrBase *pointer = field->getPointer(i);
        if (!pointer || !*pointer)
            continue;
        const FieldContainerPtr contained =
            cloneContained(FieldContainerPtr(pointer->getBaseCPtr()));
        *pointer = contained;
        if (isCounted && !contained->getType().isNode())
            addRefCP(contained);
        const AttachmentPtr property = AttachmentPtr::dcast(contained);
        // Arrays tell their geometry when they are edited.
        if (property && dynamic_cast<Geometry *>(&to))
            property->addParent(FieldContainerPtr(to));
    }
}

void Cloner::copyAttachments(AttachmentContainer *from, AttachmentContainer *to) const
{
    if (!from || !to)
        return;
    for (const auto &[key, attachment] : from->getSFAttachments()->getValue())
        to->addAttachment(AttachmentPtr::dcast(cloneContained(attachment)), UInt16(key));
}

NodePtr Cloner::cloneTree(const NodePtr &original) const
{
    const NodePtr copy = Node::create();
    copy->setTravMask(original->getTravMask());
    copyAttachments(original.getCPtr(), copy.getCPtr());
    copy->setCore(NodeCorePtr::dcast(cloneContained(original->getCore())));
    for (const NodePtr &child : *original->getMFChildren())
        copy->addChild(cloneTree(child));
    return copy;
}

} // namespace

NodePtr cloneTree(const NodePtr &root)
{
    if (!root)
        return NullFC;
    const NodePtr copy = root->clone();
    for (const NodePtr &child : *root->getMFChildren())
        copy->addChild(cloneTree(child));
    return copy;
}

NodePtr deepCloneTree(const NodePtr &root, const std::string &shareTypes)
{
    return root ? Cloner(shareTypes).cloneTree(root) : NodePtr();
}

FieldContainerPtr deepClone(const FieldContainerPtr &object, const std::string &shareTypes)
{
    return Cloner(shareTypes).clone(object);
}

} // namespace osg
