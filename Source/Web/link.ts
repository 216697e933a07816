import { Matrix4, Quaternion, Vector3 } from "three";
import type { Camera } from "./published";

/** What a link to the page addresses: `#set=NAME&KIND:VARIANT=OPTION&view=...`. */
export interface Place {
    set?: string;
    /** What was chosen after the set, in this order. */
    options: { kind: string; variant: string; option: string }[];
    view?: Camera;
}

/** Names are percent-encoded; what makes no sense is left out. */
export function parseLink(hash: string): Place {
    const place: Place = { options: [] };
    for (const entry of hash.replace(/^#/, "").split("&")) {
        const [name = "", value = ""] = entry.split(/=(.*)/s).map(decoded);
        const [, kind, variant] = /^(\w+):(.*)$/s.exec(name) ?? [];
        if (name === "set")
            place.set = value;
        else if (name === "view")
            place.view = parseView(value);
        else if (kind && variant !== undefined)
            place.options.push({ kind, variant, option: value });
    }
    return place;
}

export function formatLink({ set, options, view }: Place): string {
    const entries: string[] = [];
    if (set !== undefined)
        entries.push(`set=${encodeURIComponent(set)}`);
    for (const { kind, variant, option } of options)
        entries.push(`${kind}:${encodeURIComponent(variant)}=${encodeURIComponent(option)}`);
    if (view)
        entries.push(`view=${formatView(view)}`);
    return entries.length ? `#${entries.join("&")}` : "";
}

/** Place, rotation, near and far plane, and the field of view in degrees, or "h" and the height. */
function formatView({ matrix, fieldOfView, height, near, far }: Camera): string {
    const [place, turn] = [new Vector3(), new Quaternion()];
    new Matrix4().fromArray(matrix).decompose(place, turn, new Vector3());
    const size = fieldOfView > 0 ? short(fieldOfView) : `h${short(height)}`;
    return [...[...place.toArray(), ...turn.toArray(), near, far].map(short), size].join(",");
}

function parseView(text: string): Camera | undefined {
    const parts = text.split(",");
    const size = parts[9] ?? "";
    const isParallel = size.startsWith("h");
    const numbers = [...parts.slice(0, 9), size.replace("h", "")].map(Number);
    if (parts.length !== 10 || !numbers.every(Number.isFinite) || !((numbers[9] ?? 0) > 0))
        return undefined;
    const [x, y, z, i, j, k, w, near, far, extent] = numbers as [number, number, number, number, number,
                                                                 number, number, number, number, number];
    const turn = new Quaternion(i, j, k, w).normalize();
    const matrix = new Matrix4().compose(new Vector3(x, y, z), turn, new Vector3(1, 1, 1));
    return {
        matrix: matrix.toArray(), near, far,
        fieldOfView: isParallel ? 0 : Math.min(extent, 170),
        height: isParallel ? extent : 0,
    };
}

function short(number: number): string {
    return String(Number(number.toPrecision(6)));
}

function decoded(text: string): string {
    try {
        return decodeURIComponent(text);
    } catch {
        return text;
    }
}
