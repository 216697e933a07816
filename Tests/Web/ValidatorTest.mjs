// Khronos' validator finds no error in what is exported and published.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";
import { demo, emptyFolder, places, readJson, realScenes, require, scenes, workbench } from "./Support/program.mjs";

const validator = require("gltf-validator");

async function assertValid(file) {
    const { issues } = await validator.validateBytes(new Uint8Array(readFileSync(file)), { maxIssues: 0 });
    const errors = issues.messages.filter(({ severity }) => severity === 0);
    assert.equal(issues.numErrors, 0, `${file}: ${JSON.stringify(errors.slice(0, 5))}`);
}

for (const place of [places.demo, places.compressed, places.some, places.hostile])
    test(`published: ${path.basename(place)}`, () => assertValid(path.join(place, "scene.glb")));

test("real scenes, published and exported", { skip: !realScenes }, async () => {
    const folder = emptyFolder("exported-real");
    for (const { name, file } of scenes()) {
        await assertValid(path.join(places.real, name, "scene.glb"));
        for (const options of [[], ["--compress"]]) {
            const out = path.join(folder, `${name}${options}.glb`);
            workbench("export", file, "--out", out, ...options);
            await assertValid(out);
        }
    }
});

test("the demo exported, whole and set by set", async () => {
    const folder = emptyFolder("exported");
    const sets = readJson(path.join(places.demo, "published.json")).sets.map(({ name }) => name);
    const wishes = [[], ["--compress"], ...sets.map(name => ["--set", name])];
    for (const [number, options] of wishes.entries()) {
        const out = path.join(folder, `${number}.glb`);
        workbench("export", demo, "--out", out, ...options);
        await assertValid(out);
    }
});
