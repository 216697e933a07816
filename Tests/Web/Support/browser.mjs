// Published pages in headless Chromium. Whatever a page complains of, or asks another place for, is a fault.
import assert from "node:assert/strict";
import { createReadStream, existsSync, statSync } from "node:fs";
import { createServer } from "node:http";
import path from "node:path";
import { after, test } from "node:test";
import { pathToFileURL } from "node:url";
import { require } from "./program.mjs";

const { chromium } = require("playwright-core");

const types = {
    ".html": "text/html", ".js": "text/javascript", ".css": "text/css", ".json": "application/json",
    ".glb": "model/gltf-binary", ".png": "image/png", ".jpg": "image/jpeg", ".webp": "image/webp",
};
const flags = [
    "--use-angle=swiftshader", "--enable-unsafe-swiftshader", "--disable-quic", "--no-first-run",
    "--disable-background-networking", "--disable-component-update", "--disable-sync",
];

let started;
const servers = [];

function browser() {
    started ??= chromium.launch({
        executablePath: process.env.QX_CHROMIUM ?? "/usr/bin/chromium",
        args: process.getuid() === 0 ? [...flags, "--no-sandbox"] : flags,
    });
    return started;
}

after(async () => {
    await (await started)?.close();
    servers.forEach(server => server.close());
});

/** The address of a server for a folder, which ends with a slash. */
export function serve(folder) {
    const server = createServer((request, response) => {
        const name = decodeURIComponent(new URL(request.url, "http://localhost").pathname);
        const file = path.join(folder, name.endsWith("/") ? `${name}index.html` : name);
        if (!existsSync(file)) {
            response.writeHead(404).end();
            return;
        }
        response.writeHead(200, {
            "Content-Type": types[path.extname(file)] ?? "application/octet-stream",
            "Content-Length": statSync(file).size,
        });
        createReadStream(file).pipe(response);
    });
    servers.push(server);
    return new Promise(resolve => server.listen(0, "127.0.0.1", () =>
        resolve(`http://127.0.0.1:${server.address().port}/`)));
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
    const address = isFile ? pathToFileURL(place).href : await serve(place);
    const faults = [];
    const context = await (await browser()).newContext({ serviceWorkers: "block", ...options });
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
