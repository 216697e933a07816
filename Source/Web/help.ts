import { button, element, icon } from "./dom";
import type { Published } from "./published";
import { readableKey, type Strings } from "./strings";

/** How to move, and which keys there are. */
export function helpDialog(published: Published, strings: Strings): HTMLDialogElement {
    const dialog = element("dialog", { id: "help", "aria-labelledby": "help-title" });
    const own = [
        ...published.sets.map(set => [set.key, set.name] as const),
        ...published.variants.flatMap(variant => variant.options.map(option =>
            [option.key, `${variant.name}: ${option.label}`] as const)),
    ].filter(([key]) => key).map(([key, name]): [string, string] =>
        [readableKey(key, published.language), name]);
    dialog.append(
        element("header", {}, element("h2", { id: "help-title" }, strings.help),
                button({ class: "tool", "aria-label": strings.close }, () => dialog.close(), icon("close"))),
        element("h3", {}, strings.scene), table([...strings.mouse, ...strings.sceneKeys]));
    if (own.length)
        dialog.append(element("h3", {}, strings.setKeys), table(own), element("p", {}, strings.browserKeys));
    dialog.addEventListener("click", event => {
        if (event.target === dialog)
            dialog.close();
    });
    return dialog;
}

function table(rows: [string, string][]): HTMLElement {
    return element("dl", {}, ...rows.map(([key, meaning]) =>
        element("div", {}, element("dt", {}, element("kbd", {}, key)), element("dd", {}, meaning))));
}
