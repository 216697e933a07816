import { button, element, icon } from "./dom";
import { searchable, type Block, type Item } from "./items";
import type { Viewpoint } from "./published";
import type { Strings } from "./strings";
import type { Viewer } from "./viewer";

/** The viewpoints and the animations. */
export function viewBlocks(viewer: Viewer, strings: Strings): Block[] {
    const { viewpoints, clips } = viewer.published;
    const blocks: Block[] = [];
    if (viewpoints.length)
        blocks.push(blockOf(strings.viewpoints, viewpoints.map(view => viewItem(view, viewer))));
    if (clips.length) {
        const items = clips.map((clip, index) => clipItem(clip.name, index, viewer));
        blocks.push(blockOf(strings.clips, items));
    }
    return blocks;
}

function blockOf(title: string, items: Item[]): Block {
    const list = element("ul", { class: "rows" }, ...items.map(item => item.element));
    return { element: element("section", {}, element("h3", {}, title), list), items };
}

function viewItem(viewpoint: Viewpoint, viewer: Viewer): Item {
    const made = button({ class: "row" }, () => viewer.fly(viewpoint), icon("view"),
                        element("span", { class: "name" }, viewpoint.name));
    made.dataset.viewpoint = viewpoint.name;
    return {
        element: element("li", {}, made),
        text: searchable(viewpoint.name),
        update: () => {},
    };
}

/** A clip that plays stops when it is chosen again. */
function clipItem(name: string, clip: number, viewer: Viewer): Item {
    const made = button({ class: "row", "aria-pressed": "false" },
                        () => viewer.isPlaying(clip) ? viewer.stop(clip) : viewer.play(clip),
                        element("span", { class: "name" }, name));
    made.dataset.clip = name;
    made.prepend(icon("play"));
    return {
        element: element("li", {}, made),
        text: searchable(name),
        update: () => {
            const isPlaying = viewer.isPlaying(clip);
            if (String(isPlaying) === made.getAttribute("aria-pressed"))
                return;
            made.setAttribute("aria-pressed", String(isPlaying));
            made.firstChild?.replaceWith(icon(isPlaying ? "stop" : "play"));
        },
    };
}
