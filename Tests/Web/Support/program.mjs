// The program, and where tests keep what it writes.
import { execFileSync } from "node:child_process";
import { mkdirSync, readdirSync, readFileSync, rmSync, statSync } from "node:fs";
import { createRequire } from "node:module";
import path from "node:path";
import { fileURLToPath } from "node:url";

const top = fileURLToPath(new URL("../../..", import.meta.url));
const build = path.join(top, "build/release");
const { env } = process;

export const work = env.QX_WEB_WORK ?? path.join(build, "test-web");
export const demo = env.QX_DEMO ?? path.join(build, "share/qxVariants/demos/roadster.gltf");
/** A folder of real scenes; not everybody has one. */
export const realScenes = env.QX_SCENES;
const program = env.QX_WORKBENCH ?? path.join(build, "bin/workbench");

/** Where PublishTest puts what the other tests look at. */
export const places = {
    demo: path.join(work, "demo"),
    compressed: path.join(work, "compressed"),
    some: path.join(work, "some"),
    hostile: path.join(work, "hostile"),
    real: path.join(work, "real"),
    single: path.join(work, "single.html"),
    hostileSingle: path.join(work, "hostile.html"),
};

/** Gives what npm brought; the tests lie outside of its folder. */
export const require = createRequire(path.join(top, "build/web/package.json"));

/** A folder for what a test makes, empty. */
export function emptyFolder(name) {
    const folder = path.join(work, name);
    rmSync(folder, { recursive: true, force: true });
    mkdirSync(folder, { recursive: true });
    return folder;
}

/** All files in and below a folder, relative to it. */
export function filesBelow(folder) {
    return readdirSync(folder, { recursive: true }).filter(name => statSync(path.join(folder, name)).isFile());
}

/** The real scenes that are no edge cases, each with a name for its folder. */
export function scenes() {
    if (!realScenes)
        return [];
    const files = filesBelow(realScenes).filter(name => /^(?!edge-cases).*\.(gltf|glb)$/.test(name));
    return files.sort().map(name => ({ name: path.parse(name).name, file: path.join(realScenes, name) }));
}

/** Runs a command, fails if it does, and gives its standard output. */
export function workbench(...args) {
    return execFileSync(program, args, {
        encoding: "utf8", maxBuffer: 2 ** 30, stdio: ["ignore", "pipe", "pipe"],
        env: {
            ...env, QT_QPA_PLATFORM: "offscreen", LC_ALL: "C.UTF-8",
            XDG_DATA_HOME: work, XDG_CACHE_HOME: work, XDG_STATE_HOME: work,
        },
    });
}

export function readJson(file) {
    return JSON.parse(readFileSync(file, "utf8"));
}

/** What the program shows after each of these sets, one after the other; scripts do not travel. */
export function recordsOfSets(scene, names) {
    if (!names.length)
        return [];
    const reports = workbench("select", scene, ...names, "--no-scripts", "--json", "--record");
    return JSON.parse(reports).map(report => report.record);
}
