import { button, element } from "./dom";
import { mark, searchable, type Block, type Item } from "./items";
import type { Kind, Option, Published, Variant } from "./published";
import { readableKey, type Strings } from "./strings";

type Choose = (variant: Variant, option: Option) => void;

const order: Kind[] = ["node", "material", "transform", "light", "overlay"];

/** The variants by kinds, each with its states and actions. */
export function variantBlocks(published: Published, strings: Strings, choose: Choose): Block[] {
    const blocks: Block[] = [];
    for (const kind of order) {
        const variants = published.variants.filter(variant => variant.kind === kind);
        if (!variants.length)
            continue;
        const items = variants.map((variant, index) =>
            variantItem(variant, `${kind}${index}`, published, strings, choose));
        const block = element("section", {}, element("h3", {}, strings.kinds[kind]),
                              ...items.map(item => item.element));
        blocks.push({ element: block, items });
    }
    return blocks;
}

function variantItem(variant: Variant, id: string, published: Published, strings: Strings,
                     choose: Choose): Item {
    const updates: Item["update"][] = [];
    const buttonOf = (option: Option): HTMLElement => {
        const made = button({ class: option.action ? "action" : "option" },
                            () => choose(variant, option), option.label);
        made.dataset.kind = variant.kind;
        made.dataset.variant = variant.name;
        made.dataset.option = option.name;
        if (option.key)
            made.title = strings.key(readableKey(option.key, published.language));
        if (!option.action) {
            made.setAttribute("aria-pressed", "false");
            updates.push(states => mark(made, states.holds(option.now)));
        }
        return made;
    };
    const name = element("h4", { id: `variant-${id}` }, variant.name);
    const states = variant.options.filter(option => !option.action).map(buttonOf);
    const actions = variant.options.filter(option => option.action).map(buttonOf);
    const made = element("div", { class: "variant", role: "group", "aria-labelledby": name.id }, name,
                         element("div", { class: "options" }, ...states, ...actions));
    return {
        element: made,
        text: searchable(variant.name, strings.kinds[variant.kind],
                         ...variant.options.map(option => option.label)),
        update: states => updates.forEach(update => update(states)),
    };
}
