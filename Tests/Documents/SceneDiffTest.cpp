#include "Compare/qxSceneDiff.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

namespace {

QJsonObject parsed(const QByteArray &json)
{
    const QJsonObject object = QJsonDocument::fromJson(json).object();
    EXPECT_FALSE(object.isEmpty()) << json.toStdString();
    return object;
}

/// Such as "+node A B".
QStringList differences(const QByteArray &before, const QByteArray &after)
{
    QStringList result;
    for (const qxSceneDifference &each : qxSceneDiff::of(parsed(before), parsed(after)))
        result +=
            QString("%1%2 %3").arg(QChar("+-~>="[int(each.sort)]), each.what, each.names.join(' '));
    return result;
}

/// A car with a wheel that has a material with a picture, and is turned.
const QByteArray car = R"({"asset": {"version": "2.0"}, "scene": 0,
 "scenes": [{"name": "Show", "nodes": [0]}],
 "nodes": [{"name": "Car", "children": [1]}, {"name": "Wheel", "mesh": 0}],
 "meshes": [{"name": "Tyre", "primitives": [{"attributes": {"POSITION": 0}, "material": 0}]}],
 "materials": [{"name": "Rubber", "normalTexture": {"index": 0}}],
 "textures": [{"source": 0, "sampler": 0}], "samplers": [{"wrapS": 1}],
 "images": [{"name": "Profile", "uri": "a.png"}],
 "accessors": [{"count": 3, "bufferView": 0}, {"count": 9, "bufferView": 1}],
 "animations": [{"name": "Turn", "channels": [{"sampler": 0, "target": {"node": 1}}],
   "samplers": [{"input": 1, "output": 1}]}],
 "extensions": {"KHR_lights_punctual": {"lights": [{"name": "Sun"}]}}})";

TEST(SceneDiffTest, ThingsAreComparedByNameWhereverTheyStand)
{
    struct Edit {
        std::vector<std::pair<QByteArray, QByteArray>> replaced;
        QStringList expected;
    };
    const Edit edits[] = {
        {{}, {}},
        // Something is put in front of everything.
        {{{R"([{"name": "Car", "children": [1]})",
           R"([{"name": "New"}, {"name": "Car", "children": [2]})"},
          {R"("nodes": [0])", R"("nodes": [1])"},
          {R"("node": 1)", R"("node": 2)"},
          {R"("mesh": 0)", R"("mesh": 1)"},
          {R"("meshes": [)", R"("meshes": [{"name": "Box", "primitives": []}, )"},
          {R"("accessors": [)", R"("accessors": [{"count": 7}, )"},
          {R"("POSITION": 0)", R"("POSITION": 1)"},
          {R"("input": 1, "output": 1)", R"("input": 2, "output": 2)"},
          {R"("textures": [)", R"("textures": [{}, )"},
          {R"("index": 0)", R"("index": 1)"},
          {R"("bufferView": 1)", R"("bufferView": 5)"}},
         {"+node New", "+mesh Box"}},
        {{{"\"count\": 9", "\"count\": 8"}}, {"~animation Turn"}},
        {{{"wrapS\": 1", "wrapS\": 2"}}, {"~material Rubber"}},
        {{{"a.png", "b.png"}}, {"~image Profile"}},
        {{{"\"Sun\"", "\"Moon\""}}, {"+light Moon", "-light Sun"}},
        {{{"\"Wheel\"", "\"Rim\""}, {"\"Rubber\"", "\"Wood\""}, {"\"Turn\"", "\"Roll\""}},
         {"=node Rim", "=material Wood", "=animation Roll"}},
        {{{"\"Car\"", "\"Wheel\""}, {"\"Wheel\", \"mesh", "\"Car\", \"mesh"}},
         {"~scene Show", "~node Wheel Car", "~animation Turn"}},
        {{{"\"name\": \"Wheel\", ", ""}},
         {"~node Car", "+node ", "-node Wheel", "~animation Turn"}},
        {{{"\"scene\": 0", "\"extras\": {\"a\": 1}"}}, {"+extra a", "-member scene"}},
    };
    for (const Edit &edit : edits) {
        QByteArray after = car;
        for (const auto &[old, now] : edit.replaced) {
            EXPECT_TRUE(after.contains(old)) << old.toStdString();
            after.replace(old, now);
        }
        QStringList found = differences(car, after), expected = edit.expected;
        found.sort();
        expected.sort();
        EXPECT_EQ(found.join('\n').toStdString(), expected.join('\n').toStdString());
    }
}

} // namespace
