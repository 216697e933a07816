import type { Choices } from "./choices";
import { formatLink, parseLink, type Place } from "./link";
import type { Camera, Published } from "./published";
import { States } from "./states";

/** How long nothing must change before the address bar follows: browsers limit how often it may. */
const pause = 150;

/** Keeps the page's address up to what is shown. */
export class Address {
    private set?: string;
    private timer = 0;
    private shown = location.hash;

    constructor(private readonly published: Published, private readonly choices: Choices,
                private readonly states: States) {}

    /** The last set that was selected, if any. */
    get current(): string | undefined {
        return this.set;
    }

    selected(set: string | undefined): void {
        this.set = set;
    }

    /** Another state is shown. */
    follow(): void {
        clearTimeout(this.timer);
        this.timer = window.setTimeout(() => this.write(), pause);
    }

    /** An address that shows what is shown now, with that view. */
    link(view?: Camera): string {
        const base = location.href.replace(/#.*$/, "");
        return base + formatLink({ ...this.place(), view });
    }

    /** Calls back with what another address asks for: by the back button, or typed. */
    listen(open: (place: Place) => void): void {
        window.addEventListener("hashchange", () => {
            if (location.hash === this.shown)
                return;
            this.shown = location.hash;
            open(parseLink(location.hash));
        });
    }

    /** The set, and the options that then still lead to another state than the present one. */
    private place(): Place {
        const states = new States(this.published);
        const set = this.set === undefined ? undefined : this.choices.set(this.set);
        if (set)
            states.run(set.step);
        const place: Place = { set: set?.name, options: [] };
        for (const variant of this.published.variants) {
            for (const option of variant.options) {
                if (!this.states.holds(option.now) || states.holds(option.now))
                    continue;
                states.run(option.step);
                place.options.push({ kind: variant.kind, variant: variant.name, option: option.name });
            }
        }
        return place;
    }

    private write(): void {
        const wanted = formatLink(this.place());
        if (wanted === location.hash || (!wanted && !location.hash))
            return;
        const isOtherSet = parseLink(wanted).set !== parseLink(location.hash).set;
        const address = wanted || location.pathname + location.search;
        if (isOtherSet)
            history.pushState(null, "", address);
        else
            history.replaceState(null, "", address);
        this.shown = location.hash;
    }
}
