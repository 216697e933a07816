// Whether two records of a scene say the same.
import assert from "node:assert/strict";

/** Programs and browsers compute with 32 and 64 bits. */
function isNear(a, b, size) {
    return Math.abs(a - b) <= 2e-5 * Math.max(1, size);
}

function sizeOf(numbers) {
    return Math.max(...numbers.map(Math.abs));
}

function compareValues(where, page, program, wrong) {
    if (typeof program === "number" && typeof page === "number") {
        if (!isNear(page, program, Math.abs(program)))
            wrong.push(`${where}: ${page} instead of ${program}`);
    } else if (Array.isArray(program) && program.every(value => typeof value === "number")) {
        const size = sizeOf(program);
        if (page?.length !== program.length || !program.every((value, at) => isNear(page[at], value, size)))
            wrong.push(`${where}: [${page}] instead of [${program}]`);
    } else if (program !== null && typeof program === "object") {
        for (const key of new Set([...Object.keys(program), ...Object.keys(page ?? {})]))
            compareValues(`${where} ${key}`, page?.[key], program[key], wrong);
    } else if (page !== program) {
        wrong.push(`${where}: ${page} instead of ${program}`);
    }
}

function byNumber(nodes) {
    return Object.fromEntries(nodes.map(node => [`node ${node.node} "${node.name}"`, node]));
}

/** Fails with the first differences. */
export function assertSameRecord(page, program, what) {
    const wrong = [];
    for (const key of new Set([...Object.keys(program), ...Object.keys(page)])) {
        const [shown, wanted] = key === "nodes" ? [byNumber(page.nodes), byNumber(program.nodes)]
            : [page[key], program[key]];
        compareValues(key === "nodes" ? "" : key, shown, wanted, wrong);
    }
    assert.equal(wrong.length, 0, `${what}: ${wrong.length} differences\n${wrong.slice(0, 10).join("\n")}`);
}
