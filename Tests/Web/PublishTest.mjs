// Publishes what the other tests look at, and checks the files.
import assert from "node:assert/strict";
import { readFileSync, statSync, writeFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";
import { demo, emptyFolder, filesBelow, places, readJson, realScenes, scenes, work, workbench } from "./Support/program.mjs";

const quick = ["--quality", "quick"];

function publish(scene, place, ...options) {
    emptyFolder(path.relative(work, place));
    workbench("publish", scene, "--out", place, ...quick, ...options);
    return readJson(path.join(place, "published.json"));
}

test("a folder holds what the page names, and nothing else", () => {
    const published = publish(demo, places.demo);
    const named = [...published.sets.map(set => set.preview), ...published.lightings.map(light => light.picture),
                   published.poster, published.scene].map(name => name.replace(/\?.*/, ""));
    const files = new Set([...named, "index.html", "viewer.js", "viewer.css", "published.json"]);
    assert.deepEqual(filesBelow(places.demo).sort(), [...files].sort());
    assert.equal(published.bytes, statSync(path.join(places.demo, "scene.glb")).size);
    assert.ok(published.nodes.every(node => Object.keys(node).length > 1 && !Object.values(node).includes(null)),
              "a binding without meaning");
});

test("a compressed page in German is smaller by more than half", () => {
    publish(demo, places.compressed, "--compress", "--language", "de", "--title", "Straße");
    const [plain, compressed] = [places.demo, places.compressed].map(place =>
        statSync(path.join(place, "scene.glb")).size);
    assert.ok(compressed < plain / 2, `${compressed} of ${plain} bytes`);
});

test("a single file names no other", () => {
    workbench("publish", demo, "--single-file", places.single, ...quick);
    assert.doesNotMatch(readFileSync(places.single, "utf8"), /<[^>]* (?:src|href)="(?!data:|#)[^"]*"/);
});

test("chosen groups, without variants", () => {
    const [group] = readJson(path.join(places.demo, "published.json")).groups;
    const published = publish(demo, places.some, "--groups", group.name, "--no-variants");
    assert.deepEqual(published.groups.map(({ name }) => name), [group.name]);
    assert.equal(published.sets.length, group.sets.length);
    assert.deepEqual(published.variants, []);
});

test("names that are code elsewhere stay names", () => {
    const folder = emptyFolder("hostile-scene");
    const [document, scene] = [path.join(folder, "document.xml"), path.join(folder, "hostile.gltf")];
    const names = { Winterfest: "<img src=x onerror=document.title=1>", Rubinrot: "</script><script>document.title=1</script>" };
    const escaped = name => name.replace(/</g, "&lt;").replace(/>/g, "&gt;");
    workbench("document", demo, "--out", document);
    writeFileSync(document, readFileSync(document, "utf8").replace(/"(Winterfest|Rubinrot)"/g, (_, name) =>
        `"${escaped(names[name])}"`));
    workbench("document", demo, "--in", document, "--save", scene);
    const published = publish(scene, places.hostile, "--title", "</title><script>document.title=1</script>",
                              "--single-file", places.hostileSingle);
    for (const name of Object.values(names))
        assert.ok(published.sets.some(set => set.name === name), name);
});

test("real scenes", { skip: !realScenes }, () => {
    for (const { name, file } of scenes())
        publish(file, path.join(places.real, name));
});
