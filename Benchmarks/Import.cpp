#include "Files/qxSceneFile.h"
#include "qxHost.h"

#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

const int Variants = 8;

/// `count` texts with commas between them, each made by `entry` from its number.
template <class Entry>
static QByteArray list(int count, Entry entry)
{
    QByteArray text;
    for (int i = 0; i < count; ++i)
        text += (i ? "," : "") + entry(QByteArray::number(i), i);
    return "[" + text + "]";
}

/// One primitive, a triangle, which every variant gives another material.
static QByteArray mesh(const QByteArray &number, int index)
{
    const auto mapping = [index](const QByteArray &variant, int which) {
        return "{\"material\":" + QByteArray::number((index + which) % Variants) + ",\"variants\":["
            + variant + "]}";
    };
    return "{\"name\":\"Mesh " + number + "\",\"primitives\":[{\"attributes\":{\"POSITION\":0},"
        + "\"material\":" + QByteArray::number(index % Variants)
        + ",\"extensions\":{\"KHR_materials_variants\":{\"mappings\":" + list(Variants, mapping)
        + "}}}]}";
}

/// A scene of that many nodes with a mesh each.
static QByteArray scene(int primitives)
{
    const auto named = [](const QByteArray &number, int) {
        return "{\"name\":\"Look " + number + "\"}";
    };
    const auto node = [](const QByteArray &number, int) {
        return "{\"name\":\"Part " + number + "\",\"mesh\":" + number + "}";
    };
    const QByteArray triangle =
        QByteArray(
            reinterpret_cast<const char *>(std::vector<float>{0, 0, 0, 1, 0, 0, 0, 1, 0}.data()),
            36)
            .toBase64();
    return "{\"asset\":{\"version\":\"2.0\"},\"scene\":0,\"scenes\":[{\"nodes\":"
        + list(primitives, [](const QByteArray &number, int) { return number; }) + "}],\"nodes\":"
        + list(primitives, node) + ",\"meshes\":" + list(primitives, mesh) + ",\"materials\":"
        + list(Variants, named) + ",\"extensionsUsed\":[\"KHR_materials_variants\"]"
        + ",\"extensions\":{\"KHR_materials_variants\":{\"variants\":" + list(Variants, named)
        + "}},\"accessors\":[{\"bufferView\":0,\"componentType\":5126,\"count\":3,\"type\":"
          "\"VEC3\","
        + "\"min\":[0,0,0],\"max\":[1,1,0]}],\"bufferViews\":[{\"buffer\":0,\"byteLength\":36}],"
        + "\"buffers\":[{\"byteLength\":36,\"uri\":\"data:application/octet-stream;base64,"
        + triangle + "\"}]}";
}

static void importFile(benchmark::State &state)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("scene.gltf"));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return state.SkipWithError("no file can be written");
    file.write(scene(int(state.range(0))));
    file.close();

    qxHost host;
    for (auto _ : state) {
        qxSceneFile read;
        if (!read.load(path))
            return state.SkipWithError(read.errorString().toUtf8().constData());
        state.PauseTiming(); // what a host does before it loads the next scene
        host.clearScene();
        state.ResumeTiming();
    }
    state.SetItemsProcessed(state.iterations() * state.range(0));
}

// Argument: number of primitives, each with a material of its own in every variant.
BENCHMARK(importFile)->Name("Import/file")->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
