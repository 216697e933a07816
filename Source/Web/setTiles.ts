import { button, element } from "./dom";
import { mark, searchable, type Block, type Item } from "./items";
import type { Group, Published, Set as VariantSet } from "./published";
import { readableKey, type Strings } from "./strings";

type Choose = (set: VariantSet) => void;

/** The sets by groups, as tiles with their previews. */
export function setBlocks(published: Published, strings: Strings, choose: Choose): Block[] {
    const isAlone = published.groups.length === 1;
    return published.groups.filter(group => group.sets.length > 0).map(group => {
        const sets = group.sets.map(index => published.sets[index]).filter(set => set !== undefined);
        const hasPictures = sets.some(set => set.preview);
        const items = sets.map(set => tile(set, group, published, strings, choose));
        const list = element("ul", { class: hasPictures ? "tiles" : "rows" },
                             ...items.map(item => item.element));
        const name = group.name || (isAlone ? "" : strings.otherSets);
        const block = element("section", {},
                              name ? element("h3", {}, name) : undefined,
                              group.comment ? element("p", {}, group.comment) : undefined, list);
        return { element: block, items };
    });
}

function tile(set: VariantSet, group: Group, published: Published, strings: Strings,
              choose: Choose): Item {
    const picture = set.preview
        ? element("img", { src: set.preview, alt: "", loading: "lazy", decoding: "async" })
        : undefined;
    const key = set.key ? readableKey(set.key, published.language) : "";
    const label = element("span", { class: "name" }, set.name);
    const made = button({ class: "tile", title: key ? strings.key(key) : undefined },
                        () => choose(set), picture, label,
                        set.comment ? element("span", { class: "comment" }, set.comment) : undefined);
    made.dataset.set = set.name;
    if (set.now)
        made.setAttribute("aria-pressed", "false");
    return {
        element: element("li", {}, made),
        text: searchable(set.name, group.name, set.comment),
        update: states => {
            if (set.now)
                mark(made, states.holds(set.now));
        },
    };
}
