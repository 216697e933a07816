#include "Files/qxGltfJson.h"

const qxJson &qxGltfMember(const qxJson &object, const char *name)
{
    static const qxJson none;
    if (!object.is_object())
        return none;
    const auto found = object.find(name);
    return found == object.end() ? none : *found;
}

const qxJson &qxGltfSection(const qxJson &document, const char *name)
{
    static const qxJson none = qxJson::array();
    const qxJson &section = qxGltfMember(document, name);
    return section.is_array() ? section : none;
}

int qxGltfIndex(const qxJson &object, const char *name)
{
    const qxJson &value = qxGltfMember(object, name);
    return value.is_number_integer() ? value.get<int>() : -1;
}

QString qxGltfCalled(const char *kind, int index, const qxJson &entry)
{
    const QString number = QString("%1 %2").arg(kind).arg(index);
    const qxJson &name = qxGltfMember(entry, "name");
    if (!name.is_string())
        return number;
    return number + " \"" + QString::fromStdString(name.get_ref<const std::string &>()) + '"';
}
