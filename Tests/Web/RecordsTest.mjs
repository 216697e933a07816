// What the page draws is what the program shows, node by node.
import assert from "node:assert/strict";
import path from "node:path";
import { test } from "node:test";
import { onPage, pageTest, recordOfPage } from "./Support/browser.mjs";
import { demo, emptyFolder, places, readJson, realScenes, recordsOfSets, scenes, workbench } from "./Support/program.mjs";
import { assertSameRecord } from "./Support/records.mjs";

const desktop = { viewport: { width: 720, height: 450 } };

function setsOf(place) {
    return readJson(path.join(place, "published.json")).sets.map(({ name }) => name);
}


/** Selects sets one after the other, in the page and in the program, and compares after each. */
async function followSets(page, scene, names) {
    const program = recordsOfSets(scene, names);
    for (const [step, name] of names.entries()) {
        assert.ok(await page.evaluate(set => window.qxViewer.select(set), name), name);
        assertSameRecord(await recordOfPage(page), program[step], `${names.slice(0, step + 1).join(", ")}`);
    }
}

/** The same numbers on every run: Park and Miller's generator. */
function randomNumbers(seed) {
    let state = seed;
    return below => {
        state = (state * 48271) % 2147483647;
        return state % below;
    };
}

function startOver(page) {
    return page.evaluate(() => window.qxViewer.reset());
}

pageTest("each set of the demo, after the start", places.demo, desktop, async page => {
    for (const name of setsOf(places.demo)) {
        await startOver(page);
        await followSets(page, demo, [name]);
    }
});

pageTest("all sets of the demo, one after the other, and random ones", places.demo, desktop, async page => {
    const names = setsOf(places.demo);
    const random = randomNumbers(20);
    await followSets(page, demo, names);
    for (let round = 0; round < 4; ++round) {
        await startOver(page);
        await followSets(page, demo, Array.from({ length: 12 }, () => names[random(names.length)]));
    }
});

pageTest("sets and single variants in turn", places.demo, desktop, async page => {
    const { sets, variants } = readJson(path.join(places.demo, "published.json"));
    const folder = emptyFolder("sequences");
    const random = randomNumbers(21);
    const any = list => list[random(list.length)];
    for (let round = 0; round < 6; ++round) {
        await startOver(page);
        const told = [];
        let scene = demo;
        for (let step = 0; step < 5; ++step) {
            const saved = path.join(folder, `${round}-${step}.gltf`);
            const variant = any(variants);
            const option = any(variant.options).name;
            told.push(`${variant.kind} ${variant.name}: ${option}`);
            workbench("set", scene, variant.name, option, "--kind", variant.kind, "--save", saved);
            assert.ok(await page.evaluate(names => window.qxViewer.choose(...names), [variant.kind, variant.name, option]));
            scene = saved;
        }
        const last = any(sets).name;
        await page.evaluate(name => window.qxViewer.select(name), last);
        const [program] = recordsOfSets(scene, [last]);
        // A file keeps neither where one looks from nor what is cut away.
        const { nodes, environment } = await recordOfPage(page);
        assertSameRecord({ nodes, environment }, { nodes: program.nodes, environment: program.environment },
                         [...told, last].join(", "));
    }
});

pageTest("a compressed page", places.compressed, desktop, async page => {
    await followSets(page, demo, setsOf(places.compressed).slice(0, 8));
});

test("real scenes", { skip: !realScenes }, async () => {
    for (const { name, file } of scenes()) {
        const place = path.join(places.real, name);
        await onPage(place, desktop, async page => {
            assert.ok((await recordOfPage(page)).nodes.length, name);
            await followSets(page, file, setsOf(place));
        });
    }
});
