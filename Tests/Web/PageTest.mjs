// What people do with a page: keys, search, links, phones, languages, colours, damaged files.
import assert from "node:assert/strict";
import { cpSync, rmSync, writeFileSync } from "node:fs";
import path from "node:path";
import { test } from "node:test";
import { onPage, pageTest, recordOfPage } from "./Support/browser.mjs";
import { demo, places, readJson, recordsOfSets, work } from "./Support/program.mjs";
import { assertSameRecord } from "./Support/records.mjs";

const desktop = { viewport: { width: 720, height: 450 } };
const phone = { viewport: { width: 360, height: 640 }, hasTouch: true, isMobile: true, deviceScaleFactor: 2 };
const published = () => readJson(path.join(places.demo, "published.json"));

async function assertShows(page, sets, what = sets.join(", ")) {
    assertSameRecord(await recordOfPage(page), recordsOfSets(demo, sets).pop(), what);
}

function address(page, fits) {
    return page.waitForURL(url => fits(decodeURIComponent(url.hash)));
}

function tile(page, name) {
    return page.locator(`button[data-set="${name}"]`);
}

pageTest("keys select sets and options", places.demo, desktop, async page => {
    const { sets } = published();
    for (const { name, key } of sets.filter(set => set.key)) {
        await page.evaluate(() => window.qxViewer.reset());
        await page.keyboard.press(key.replace("Ctrl", "Control"));
        await address(page, hash => hash.startsWith(`#set=${name}`));
        await assertShows(page, [name], key);
    }
    const wheel = () => page.locator('[data-variant="Wheels"][data-option="Turbine"]').getAttribute("aria-pressed");
    await page.evaluate(() => window.qxViewer.choose("node", "Wheels", "Five Spoke"));
    for (const [key, isTurbine] of [["w", "true"], ["Shift+W", "false"]]) {
        await page.keyboard.press(key);
        await page.waitForFunction(wanted => document.querySelector(
            '[data-variant="Wheels"][data-option="Turbine"]').getAttribute("aria-pressed") === wanted, isTurbine);
        assert.equal(await wheel(), isTurbine, key);
    }
    await page.locator("#search").fill("");
    await page.locator("#search").press("w");
    assert.equal(await wheel(), "false", "what is typed is no key");
});

pageTest("the search finds sets and variants, also without accents and capitals", places.demo, desktop, async page => {
    const shown = () => page.locator("#panel .tile:visible, #panel .option:visible").count();
    const all = await shown();
    for (const [text, set] of [["winterf", "Winterfest"], ["KUSTEN", "Küstenstraße"], ["farbw silber", "Silber"]]) {
        await page.locator("#search").fill(text);
        await tile(page, set).waitFor();
        assert.ok(await shown() < all, text);
    }
    await page.locator("#search").fill("rotunda");
    await page.locator('[data-option="Rotunda"]').click();
    await page.locator("#search").fill("no such thing");
    await page.getByText("no such thing").first().waitFor();
    assert.equal(await shown(), 0);
    await page.locator("#search").press("Escape");
    assert.equal(await shown(), all);
});

test("a link opens a set, and the address follows", async () => {
    const hash = `#set=${encodeURIComponent("Küstenstraße")}`;
    await onPage(places.demo, { ...desktop, hash }, async page => {
        await assertShows(page, ["Küstenstraße"]);
        await page.evaluate(() => { location.hash = "#set=Silber"; });
        await tile(page, "Silber").and(page.locator('[aria-pressed="true"]')).waitFor();
        await assertShows(page, ["Silber"]);
        await tile(page, "Winterfest").click();
        await address(page, text => text === "#set=Winterfest");
        await page.goBack();
        await tile(page, "Silber").and(page.locator('[aria-pressed="true"]')).waitFor();
        await assertShows(page, ["Silber"], "back");
        for (const [link, answer] of [["#view=1,2,x&&=%&set=<b>", "<b>"], ["#set=%zz", "%zz"]]) {
            await page.evaluate(text => { location.hash = text; }, link);
            await page.locator("#notice:visible", { hasText: answer }).waitFor();
        }
    });
});

pageTest("a shared link shows the same from the same side", places.demo,
         { ...desktop, permissions: ["clipboard-read", "clipboard-write"] }, async page => {
    await tile(page, "Winterfest").click();
    await page.evaluate(() => window.qxViewer.choose("node", "Wheels", "Dish"));
    const before = await recordOfPage(page);
    await page.locator("#picture").focus();
    await page.keyboard.press("ArrowLeft");
    await page.keyboard.press("+");
    const record = await recordOfPage(page);
    assert.notDeepEqual(record.camera, before.camera);
    await page.locator("#tool-share").click();
    await page.locator("#notice:visible").waitFor();
    const { hash } = new URL(await page.evaluate(() => navigator.clipboard.readText()));
    await onPage(places.demo, { ...desktop, hash }, async other =>
        assertSameRecord(await recordOfPage(other), record, hash));
});

test("a single file opens from disk", () => onPage(places.single, desktop, async page => {
    await tile(page, "Winterfest").click();
    await assertShows(page, ["Winterfest"]);
    assert.ok(await page.evaluate(() => [...document.images].every(image => !image.complete || image.naturalWidth > 0)));
}));

test("what cannot be shown is explained", async () => {
    const damaged = path.join(work, "damaged");
    rmSync(damaged, { recursive: true, force: true });
    cpSync(places.demo, damaged, { recursive: true });
    const texts = {};
    const look = name => async (page, faults) => {
        texts[name] = await page.locator("#failure").textContent();
        faults.length = 0; // the browser's own words
    };
    await onPage(path.join(places.demo, "index.html"), { ...desktop, fails: true }, look("disk"));
    rmSync(path.join(damaged, "scene.glb"));
    await onPage(damaged, { ...desktop, fails: true }, look("missing"));
    for (const [name, scene] of [["empty", ""], ["damaged", "glTF\u0002\0\0\0 and then something else"]]) {
        writeFileSync(path.join(damaged, "scene.glb"), scene);
        await onPage(damaged, { ...desktop, fails: true }, look(name));
    }
    writeFileSync(path.join(damaged, "published.json"), JSON.stringify({ ...published(), format: 2 }));
    await onPage(damaged, { ...desktop, fails: true }, look("format"));
    const words = { disk: /web server/, missing: /missing.*scene\.glb/, empty: /could not be read/,
                    damaged: /could not be read/, format: /version/ };
    for (const [name, expected] of Object.entries(words))
        assert.match(texts[name], expected, name);
});

pageTest("a phone: nothing beyond the edges, and fingers turn the scene", places.demo, phone, async page => {
    for (const tab of ["#tab-variants", "#tab-views", "#tab-sets"]) {
        await page.locator(tab).tap();
        assert.equal(await page.evaluate(() => document.documentElement.scrollWidth), 360, tab);
        const small = await page.locator("button:visible").evaluateAll(buttons => buttons.map(button => {
            const { width, height } = button.getBoundingClientRect();
            return `${button.textContent || button.id}: ${width} x ${height}`;
        }).filter(text => text.split(": ").pop().split(" x ").some(size => Number(size) < 24)));
        assert.deepEqual(small, [], `${tab}: too small for fingers`);
    }
    const box = await page.locator("#picture").boundingBox();
    assert.ok(box.width >= 350 && box.height >= 200, `${box.width} x ${box.height}`);
    await tile(page, "Winterfest").tap();
    await assertShows(page, ["Winterfest"]);
    const before = await recordOfPage(page);
    const client = await page.context().newCDPSession(page);
    const [x, y] = [box.x + box.width / 2, box.y + box.height / 2];
    const touch = (type, ...points) => client.send("Input.dispatchTouchEvent", {
        type, touchPoints: points.map(([px, py], id) => ({ x: px, y: py, id })),
    });
    await touch("touchStart", [x, y]);
    for (let step = 1; step <= 5; ++step)
        await touch("touchMove", [x + 12 * step, y]);
    await touch("touchEnd");
    const turned = await recordOfPage(page);
    assert.notDeepEqual(turned.camera.matrix, before.camera.matrix);
    await touch("touchStart", [x - 20, y], [x + 20, y]);
    for (let step = 1; step <= 5; ++step)
        await touch("touchMove", [x - 20 - 6 * step, y], [x + 20 + 6 * step, y]);
    await touch("touchEnd");
    assert.notDeepEqual((await recordOfPage(page)).camera.matrix, turned.camera.matrix);
    assertSameRecord({ nodes: (await recordOfPage(page)).nodes }, { nodes: before.nodes }, "the scene stays");
});

pageTest("German", places.compressed, desktop, async page => {
    assert.equal(await page.locator("html").getAttribute("lang"), "de");
    assert.equal(await page.title(), "Straße");
    const tabs = await page.locator('[role="tab"]').allTextContents();
    assert.deepEqual(tabs, ["Sets", "Varianten", "Ansichten"]);
    await page.locator("#tab-variants").click();
    await page.locator('[data-variant="Barrier"][data-option="!Disable"]', { hasText: "verborgen" })
        .or(page.locator('[data-variant="Barrier"][data-option="!Disable"]', { hasText: "ausgeblendet" })).first().click();
    await page.locator("#search").fill("nichts davon");
    await page.getByText("Nichts heißt „nichts davon“.").first().waitFor();
    assert.deepEqual(await page.locator("[title], [aria-label]").evaluateAll(elements =>
        elements.flatMap(e => [e.title, e.ariaLabel]).filter(text => /\b(the|and|close|search|share|key)\b/i.test(text ?? ""))), []);
});

test("dark as the system is, or as one likes it", () => onPage(places.demo, { ...desktop, colorScheme: "dark" }, async page => {
    const isDark = () => page.evaluate(() => {
        const [r, g, b] = getComputedStyle(document.getElementById("panel")).backgroundColor.match(/[\d.]+/g).map(Number);
        return r + g + b < 380;
    });
    assert.ok(await isDark());
    await page.locator("#tool-theme").click();
    assert.ok(!await isDark());
    await page.reload();
    await page.evaluate(() => window.qxViewer.complete);
    assert.ok(!await isDark(), "the page remembers");
}));

pageTest("the keyboard alone is enough, and one sees where it is", places.demo, desktop, async page => {
    const focused = () => page.evaluate(() => {
        const at = document.activeElement;
        const style = getComputedStyle(at);
        return { id: at.id, set: at.dataset.set, name: at.className,
                 isSeen: style.outlineStyle !== "none" && parseFloat(style.outlineWidth) > 0 };
    });
    await page.keyboard.press("Tab");
    assert.equal((await focused()).name, "skip");
    await page.keyboard.press("Enter");
    assert.equal((await focused()).id, "search");
    let at = await focused();
    for (let presses = 0; presses < 12 && !at.set; ++presses) {
        await page.keyboard.press("Tab");
        at = await focused();
        assert.ok(at.isSeen, JSON.stringify(at));
    }
    await page.keyboard.press("Enter");
    await address(page, hash => hash === `#set=${at.set}`);
    await assertShows(page, [at.set]);
    await page.locator("#tab-sets").focus();
    await page.keyboard.press("ArrowRight");
    assert.equal((await focused()).id, "tab-variants");
    await page.locator("#tool-help").focus();
    await page.keyboard.press("Enter");
    await page.locator("#help").waitFor();
    await page.keyboard.press("Escape");
    assert.equal((await focused()).id, "tool-help");
});

for (const [what, place] of [["folder", places.hostile], ["single file", places.hostileSingle]]) {
    pageTest(`names are text and never code: ${what}`, place, desktop, async page => {
        const title = "</title><script>document.title=1</script>";
        const { sets } = readJson(path.join(places.hostile, "published.json"));
        for (const { name } of sets.filter(set => set.name.includes("<"))) {
            await page.getByRole("button", { name }).first().click();
            await page.locator("#status", { hasText: name }).waitFor({ state: "attached" });
        }
        assert.equal(await page.title(), title);
        assert.equal(await page.locator("h1").textContent(), title);
        assert.equal(await page.locator('img[src="x"]').count(), 0);
    });
}

pageTest("animations play and stop", places.demo, desktop, async page => {
    await page.locator("#tab-views").click();
    const clip = page.locator('[data-clip="Turntable"]');
    const pictures = () => page.evaluate(() => window.qxViewer.pictures());
    await clip.click();
    const before = await pictures();
    await page.waitForFunction(count => window.qxViewer.pictures() > count + 3, before);
    assert.equal(await clip.getAttribute("aria-pressed"), "true");
    await clip.click();
    await page.waitForFunction(button => button.getAttribute("aria-pressed") === "false", await clip.elementHandle());
});

test("a link to a set starts its animation", () => {
    const { sets, clips } = published();
    const { name, step } = sets.find(set => set.step.clips?.length);
    return onPage(places.demo, { ...desktop, hash: `#set=${encodeURIComponent(name)}` }, async page => {
        const clip = page.locator(`[data-clip="${clips[step.clips[0]].name}"]`);
        assert.equal(await clip.getAttribute("aria-pressed"), "true", name);
        const before = await page.evaluate(() => window.qxViewer.pictures());
        await page.waitForFunction(count => window.qxViewer.pictures() > count + 3, before);
    });
});

pageTest("groups without variants", places.some, desktop, async page => {
    assert.equal(await page.locator("#tab-variants").count(), 0);
    const [first] = readJson(path.join(places.some, "published.json")).sets;
    await tile(page, first.name).click();
    await assertShows(page, [first.name]);
});
