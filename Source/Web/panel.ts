import { button, element, icon } from "./dom";
import { searchable, type Block } from "./items";
import type { Option, Set as VariantSet, Variant } from "./published";
import { setBlocks } from "./setTiles";
import type { Strings } from "./strings";
import { variantBlocks } from "./variantList";
import { viewBlocks } from "./viewList";
import type { Viewer } from "./viewer";

interface Page {
    tab: HTMLButtonElement;
    element: HTMLElement;
    blocks: Block[];
}

export interface PanelEvents {
    chooseSet(set: VariantSet): void;
    chooseOption(variant: Variant, option: Option): void;
    announce(text: string): void;
}

/** The part of the page beside the picture: sets, variants and views, and the search. */
export class Panel {
    readonly element: HTMLElement;
    readonly field: HTMLInputElement;
    private readonly pages: Page[] = [];
    private readonly tabs = element("div", { class: "tabs", role: "tablist" });
    private readonly nothing = element("p", { class: "nothing", hidden: true });
    private current = 0;

    constructor(private readonly viewer: Viewer, private readonly strings: Strings,
                private readonly events: PanelEvents) {
        const { published } = viewer;
        const content = element("div", { class: "content" });
        this.field = element("input", {
            type: "search", id: "search", placeholder: strings.search, "aria-label": strings.search,
            autocomplete: "off", spellcheck: "false",
        });
        this.addPage("sets", strings.sets, setBlocks(published, strings, set => events.chooseSet(set)));
        this.addPage("variants", strings.variants, variantBlocks(published, strings,
            (variant, option) => events.chooseOption(variant, option)));
        this.addPage("views", strings.views, viewBlocks(viewer, strings));
        this.tabs.setAttribute("aria-label", strings.settings);
        this.tabs.hidden = this.pages.length < 2;
        content.append(this.nothing, ...this.pages.map(page => page.element));
        const search = element("div", { class: "search", role: "search" }, icon("search"), this.field);
        this.element = element("aside", { id: "panel", "aria-label": strings.settings }, this.handle(),
                               search, this.tabs, content);
        this.field.addEventListener("input", () => this.search());
        this.field.addEventListener("keydown", event => {
            if (event.key === "Escape" && this.field.value) {
                this.field.value = "";
                this.search();
            }
        });
        this.open(0);
    }

    /** Marks what is shown now. */
    update(): void {
        for (const page of this.pages) {
            for (const block of page.blocks)
                block.items.forEach(item => item.update(this.viewer.states));
        }
    }

    private addPage(id: string, title: string, blocks: Block[]): void {
        if (!blocks.length)
            return;
        const index = this.pages.length;
        const tab = button({ role: "tab", id: `tab-${id}`, "aria-controls": `page-${id}` },
                           () => this.open(index), title);
        tab.addEventListener("keydown", event => this.moveTab(event));
        this.tabs.append(tab);
        const page = element("div", { id: `page-${id}`, role: "tabpanel", "aria-labelledby": tab.id },
                             element("h2", {}, title), ...blocks.map(block => block.element));
        this.pages.push({ tab, element: page, blocks });
    }

    private open(index: number): void {
        this.current = index;
        this.pages.forEach((page, place) => {
            page.tab.setAttribute("aria-selected", String(place === index));
            page.tab.tabIndex = place === index ? 0 : -1;
            page.element.hidden = place !== index;
        });
    }

    private moveTab(event: KeyboardEvent): void {
        const steps: Record<string, number> = { ArrowRight: 1, ArrowLeft: -1 };
        const step = steps[event.key];
        if (!step)
            return;
        const count = this.pages.length;
        this.open((this.current + step + count) % count);
        this.pages[this.current]?.tab.focus();
        event.preventDefault();
    }

    /** Shows from all pages what has all words of the search, or the open page without words. */
    private search(): void {
        const words = searchable(this.field.value).split(/\s+/).filter(word => word);
        this.element.classList.toggle("searching", words.length > 0);
        this.tabs.hidden = words.length > 0 || this.pages.length < 2;
        let found = 0;
        for (const page of this.pages) {
            let onPage = 0;
            for (const block of page.blocks) {
                const fitting = block.items.filter(item => {
                    const fits = words.every(word => item.text.includes(word));
                    item.element.hidden = !fits;
                    return fits;
                });
                block.element.hidden = fitting.length === 0;
                onPage += fitting.length;
            }
            page.element.hidden = onPage === 0;
            found += onPage;
        }
        this.nothing.hidden = found > 0;
        this.nothing.textContent = found ? "" : this.strings.nothingFound(this.field.value);
        if (words.length)
            this.events.announce(found ? this.strings.found(found) : this.nothing.textContent ?? "");
        else
            this.open(this.current);
    }

    /** On narrow screens the panel lies below the picture and may be made lower or higher. */
    private handle(): HTMLElement {
        const made = button({ class: "handle", "aria-expanded": "true" }, () => {
            const isLow = this.element.classList.toggle("low");
            made.setAttribute("aria-expanded", String(!isLow));
            made.setAttribute("aria-label", isLow ? this.strings.morePanel : this.strings.lessPanel);
        }, element("span"));
        made.setAttribute("aria-label", this.strings.lessPanel);
        return made;
    }
}
