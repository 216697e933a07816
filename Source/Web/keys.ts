/** One stroke of a key with what is held down. */
interface Stroke {
    key: string;
    ctrl: boolean;
    shift: boolean;
    alt: boolean;
    meta: boolean;
}

/** Names of keys in Qt's sequences that browsers call otherwise. */
const names: Record<string, string> = {
    ins: "insert", del: "delete", pgup: "pageup", pgdown: "pagedown", esc: "escape",
    return: "enter", space: " ", left: "arrowleft", right: "arrowright", up: "arrowup",
    down: "arrowdown", print: "printscreen",
};

/** Keys by the sequences of sets and options, such as "Ctrl+Shift+F11" or "G, 1". */
export class Keys<T> {
    private readonly sequences: { strokes: Stroke[]; what: T }[] = [];
    private pressed: Stroke[] = [];

    add(sequence: string, what: T): void {
        const strokes = parseSequence(sequence);
        if (strokes.length)
            this.sequences.push({ strokes, what });
    }

    /** What the key completes; `isPart` when it begins or continues a sequence. */
    press(event: KeyboardEvent): { what?: T; isPart: boolean } {
        const stroke = strokeOf(event);
        if (["control", "shift", "alt", "meta", "altgraph"].includes(stroke.key))
            return { isPart: false };
        this.pressed.push(stroke);
        let fitting = this.fitting(event);
        if (!fitting.length) {
            this.pressed = [stroke];
            fitting = this.fitting(event);
        }
        const done = fitting.find(({ strokes }) => strokes.length === this.pressed.length);
        if (done || !fitting.length)
            this.pressed = [];
        return { what: done?.what, isPart: fitting.length > 0 };
    }

    private fitting(event: KeyboardEvent): { strokes: Stroke[]; what: T }[] {
        return this.sequences.filter(({ strokes }) => this.pressed.every((stroke, index) => {
            const wanted = strokes[index];
            const isLast = index === this.pressed.length - 1;
            return wanted !== undefined && isSame(wanted, stroke, isLast ? event.code : "");
        }));
    }
}

/** Empty for a sequence that makes no sense. */
function parseSequence(sequence: string): Stroke[] {
    return sequence.split(/,\s+/).filter(text => text !== "").map(text => {
        const parts = /(^|\+)\+$/.test(text) ? [...text.slice(0, -2).split("+"), "+"] : text.split("+");
        const key = (parts.pop() ?? "").toLowerCase();
        const held = parts.map(part => part.trim().toLowerCase());
        return {
            key: names[key] ?? key,
            ctrl: held.includes("ctrl"),
            shift: held.includes("shift"),
            alt: held.includes("alt"),
            meta: held.includes("meta"),
        };
    });
}

function strokeOf(event: KeyboardEvent): Stroke {
    return {
        key: event.key.toLowerCase(),
        ctrl: event.ctrlKey,
        shift: event.shiftKey,
        alt: event.altKey,
        meta: event.metaKey,
    };
}

/** With Shift or Alt held, the character may be another one than the key's, as in Shift+1. */
function isSame(wanted: Stroke, pressed: Stroke, code: string): boolean {
    if (wanted.ctrl !== pressed.ctrl || wanted.alt !== pressed.alt || wanted.meta !== pressed.meta)
        return false;
    const isSymbol = wanted.key.length === 1 && !/[a-z0-9 ]/.test(wanted.key);
    if (wanted.shift !== pressed.shift && !isSymbol)
        return false;
    const plain = code.replace(/^(Key|Digit|Numpad)/, "").toLowerCase();
    return wanted.key === pressed.key || (wanted.key.length === 1 && wanted.key === plain);
}
