type Attributes = Record<string, string | boolean | undefined>;
type Child = Node | string | undefined;

/** An element with attributes and children; texts are always texts, whatever is in them. */
export function element<K extends keyof HTMLElementTagNameMap>(
    tag: K, attributes: Attributes = {}, ...children: Child[]): HTMLElementTagNameMap[K] {
    const made = document.createElement(tag);
    for (const [name, value] of Object.entries(attributes)) {
        if (value === true)
            made.setAttribute(name, "");
        else if (typeof value === "string")
            made.setAttribute(name, value);
    }
    made.append(...children.filter((child): child is Node | string => child !== undefined));
    return made;
}

export function button(attributes: Attributes, onClick: () => void,
                       ...children: Child[]): HTMLButtonElement {
    const made = element("button", { type: "button", ...attributes }, ...children);
    made.addEventListener("click", onClick);
    return made;
}

/** The element of the page that has this id. */
export function byId<T extends HTMLElement>(id: string): T {
    return document.getElementById(id) as T;
}

/** Paths on a field of 24 by 24, drawn as lines. */
const icons = {
    search: "M10.5 4a6.5 6.5 0 1 0 0 13a6.5 6.5 0 0 0 0-13ZM15.5 15.5L20 20",
    close: "M6 6L18 18M18 6L6 18",
    share: "M12 15V4M8 7.5L12 3.5L16 7.5M5 12V20H19V12",
    reset: "M5 5V10H10M5.5 10A7.5 7.5 0 1 1 4.6 14",
    help: "M9 9.2A3 3 0 1 1 12.4 12C12.1 12.2 12 12.6 12 13.5M12 17V17.2",
    theme: "M12 3.5V20.5M12 3.5A8.5 8.5 0 0 1 12 20.5A8.5 8.5 0 0 1 12 3.5M12 8H19.5M12 12H20.5M12 16H19.5",
    play: "M8 5.5V18.5L18.5 12Z",
    stop: "M7 7H17V17H7Z",
    view: "M3 8H7L9 5.5H15L17 8H21V18.5H3ZM12 10A3 3 0 1 1 12 16A3 3 0 0 1 12 10",
    handle: "M5 15L12 9L19 15",
};

export function icon(name: keyof typeof icons): SVGSVGElement {
    const space = "http://www.w3.org/2000/svg";
    const picture = document.createElementNS(space, "svg");
    picture.setAttribute("viewBox", "0 0 24 24");
    picture.setAttribute("aria-hidden", "true");
    const path = document.createElementNS(space, "path");
    path.setAttribute("d", icons[name]);
    picture.append(path);
    return picture;
}
