// Headless Chromium, and a server on this machine for the folders that it shows.
import { createReadStream, existsSync, statSync } from "node:fs";
import { createServer } from "node:http";
import path from "node:path";
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

export function launch() {
    return chromium.launch({
        executablePath: process.env.QX_CHROMIUM ?? "/usr/bin/chromium",
        args: process.getuid() === 0 ? [...flags, "--no-sandbox"] : flags,
    });
}

/** A server for a folder, and its address, which ends with a slash. */
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
    return new Promise(resolve => server.listen(0, "127.0.0.1", () =>
        resolve({ server, address: `http://127.0.0.1:${server.address().port}/` })));
}
