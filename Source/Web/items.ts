import type { States } from "./states";

/** Something in the panel that marks what is shown and that the search finds. */
export interface Item {
    readonly element: HTMLElement;
    /** What the search looks at, in lower case and without accents. */
    readonly text: string;
    /** Marks what is shown now. */
    update(states: States): void;
}

/** A part of the panel with a heading, which disappears when the search finds nothing in it. */
export interface Block {
    readonly element: HTMLElement;
    readonly items: Item[];
}

export function searchable(...texts: string[]): string {
    return texts.join(" ").normalize("NFD").replace(/\p{Diacritic}/gu, "").toLowerCase();
}

/** Sets an attribute only when it changes, because most of a panel stays as it is. */
export function mark(target: HTMLElement, on: boolean): void {
    const wanted = String(on);
    if (target.getAttribute("aria-pressed") !== wanted)
        target.setAttribute("aria-pressed", wanted);
}
