#include "qxBenchDocument.h"

#include "qxBenchScene.h"

int qxBenchDocument::setsOf(int hundreds)
{
    return hundreds * 100 / EntriesOfASet;
}

int qxBenchDocument::variantOf(int set, int entry)
{
    return (set * 7 + entry) % Variants;
}

int qxBenchDocument::childOf(int set, int entry)
{
    return (set / 4 + entry * set) % 4;
}

QByteArray qxBenchDocument::variantText(int number)
{
    const QByteArray name = qxBenchScene::switchName(number).toUtf8();
    QByteArray text = "<NodeVariant name=\"" + name + "\" base=\"" + name + "\">\n";
    for (int child = 0; child < 4; ++child)
        text += "<State name=\"" + qxBenchScene::childName(child).toUtf8() + "\"/>\n";
    return text + "</NodeVariant>\n";
}

QByteArray qxBenchDocument::ofSets(int sets)
{
    QByteArray text = "<Variants>\n";
    for (int set = 0; set < sets; ++set) {
        text += "<VariantSet name=\"Set " + QByteArray::number(set) + "\">\n";
        for (int i = 0; i < EntriesOfASet; ++i) {
            text += "<NodeVariantRef ref=\"" + qxBenchScene::switchName(variantOf(set, i)).toUtf8()
                + "\" state=\"" + qxBenchScene::childName(childOf(set, i)).toUtf8() + "\"/>\n";
        }
        text += "<Value name=\"Number\">" + QByteArray::number(set) + "</Value></VariantSet>\n";
    }
    for (int variant = 0; variant < Variants; ++variant)
        text += variantText(variant);
    return text + "</Variants>\n";
}
