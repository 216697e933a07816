// What axe-core finds in the states that a page can be in.
import assert from "node:assert/strict";
import path from "node:path";
import { test } from "node:test";
import { onPage } from "./Support/browser.mjs";
import { places, require } from "./Support/program.mjs";

const axe = require("axe-core");
const desktop = { viewport: { width: 720, height: 450 } };
const phone = { viewport: { width: 360, height: 640 }, hasTouch: true, isMobile: true };

async function assertAccessible(page, state) {
    await page.evaluate(axe.source);
    const violations = await page.evaluate(async () => (await window.axe.run()).violations.map(({ id, help, nodes }) =>
        `${id}: ${help}: ${nodes.map(node => node.html).slice(0, 3).join(" ")}`));
    assert.deepEqual(violations, [], state);
}

/** The states of a page, each reached from the one before it. */
const states = {
    start: async () => {},
    "a set is shown": async page => page.locator("button[data-set]").nth(3).click(),
    variants: async page => page.locator("#tab-variants").click(),
    views: async page => page.locator("#tab-views").click(),
    found: async page => page.locator("#search").fill("a"),
    "nothing found": async page => page.locator("#search").fill("no such thing"),
    help: async page => page.locator("#tool-help").click(),
};

for (const [what, place, options] of [
    ["light", places.demo, { ...desktop, colorScheme: "light" }],
    ["dark", places.demo, { ...desktop, colorScheme: "dark" }],
    ["German, on a phone", places.compressed, phone],
    ["a single file", places.single, { ...desktop, forcedColors: "active" }],
]) {
    test(what, () => onPage(place, options, async page => {
        for (const [state, reach] of Object.entries(states)) {
            await reach(page);
            await assertAccessible(page, state);
        }
    }));
}

test("what cannot be shown", () =>
    onPage(path.join(places.demo, "index.html"), { ...desktop, fails: true }, async (page, faults) => {
        await assertAccessible(page, "failure");
        faults.length = 0; // the browser's own words
    }));
