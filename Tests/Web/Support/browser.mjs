// Published pages in headless Chromium. Whatever a page complains of, or asks another place for, is a fault.
import assert from "node:assert/strict";
import { after, test } from "node:test";
import { pathToFileURL } from "node:url";
import { launch, serve } from "./chromium.mjs";

let started;
const servers = [];

after(async () => {
    await (await started)?.close();
    servers.forEach(server => server.close());
});

async function addressOf(folder) {
    const { server, address } = await serve(folder);
    servers.push(server);
    return address;
}

/** What a page complains of and where it asks for something that does not begin with its own address. */
async function watch(context, page, own, faults) {
    await context.route("**/*", route => {
        const url = route.request().url();
        if (url.startsWith(own) || url.startsWith("blob:") || url.startsWith("data:"))
            return route.continue();
        faults.push(`foreign request: ${url}`);
        return route.abort();
    });
    page.on("console", message => {
        if (message.type() === "error")
            faults.push(`${message.text()} ${message.location().url}`);
    });
    page.on("pageerror", error => faults.push(String(error)));
}

/**
 * Opens a served folder, or a file, hands the page over and closes it. `hash` is added to the address,
 * `fails` is for pages that cannot show their scene, everything else is an option of Playwright's contexts.
 */
export async function onPage(place, { hash = "", fails = false, ...options }, use) {
    const isFile = place.endsWith(".html");
    const address = isFile ? pathToFileURL(place).href : await addressOf(place);
    const faults = [];
    started ??= launch();
    const context = await (await started).newContext({ serviceWorkers: "block", ...options });
    try {
        const page = await context.newPage();
        page.setDefaultTimeout(60000);
        // A single file asks for nothing at all; the folder's page on a disk for its viewer.
        await watch(context, page, fails ? address.replace(/[^/]*$/, "") : address, faults);
        await page.goto(address + hash, { waitUntil: "load" });
        if (fails)
            await page.locator("#failure").waitFor();
        else
            await page.evaluate(() => window.qxViewer.complete);
        await use(page, faults);
        await page.evaluate(() => new Promise(resolve => { requestAnimationFrame(resolve); }));
        assert.deepEqual(faults, []);
    } finally {
        await context.close();
    }
}

/** A test with a page of its own. */
export function pageTest(name, place, options, use) {
    test(name, () => onPage(place, options, use));
}

export function recordOfPage(page) {
    return page.evaluate(() => window.qxViewer.record());
}
