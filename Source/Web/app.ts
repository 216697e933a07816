import { Address } from "./address";
import { Caption } from "./caption";
import { Choices, type Choice } from "./choices";
import { byId } from "./dom";
import { Keys } from "./keys";
import { parseLink, type Place } from "./link";
import type { Page } from "./page";
import { Panel } from "./panel";
import { pressInScene } from "./sceneKeys";
import type { Strings } from "./strings";
import type { Viewer } from "./viewer";

/** Joins the viewer with what people use to steer it. */
export class App {
    private readonly choices: Choices;
    private readonly address: Address;
    private readonly caption = new Caption();
    private readonly panel: Panel;
    private readonly keys = new Keys<Choice>();
    private isUpdating = false;

    constructor(private readonly viewer: Viewer, private readonly page: Page,
                private readonly strings: Strings) {
        const { published } = viewer;
        this.choices = new Choices(published);
        this.address = new Address(published, this.choices, viewer.states);
        this.panel = new Panel(viewer, strings, {
            chooseSet: set => this.choose({ set }),
            chooseOption: (variant, option) => this.choose({ variant, option }),
            announce: text => page.announce(text),
        });
        byId("page").append(this.panel.element);
        page.stage.append(this.caption.element);
        page.addTools(published, { reset: () => this.reset(), share: () => void this.share() });
        viewer.onChange = () => this.follow();
        this.addKeys();
        this.panel.update();
        this.address.listen(place => this.open(place, true));
        this.open(parseLink(location.hash), false);
    }

    select(name: string): boolean {
        const set = this.choices.set(name);
        if (set)
            this.choose({ set });
        return set !== undefined;
    }

    chooseByName(kind: string, variant: string, option: string): boolean {
        const choice = this.choices.option(kind, variant, option);
        if (choice)
            this.choose(choice);
        return choice !== undefined;
    }

    private choose(choice: Choice): void {
        if ("set" in choice)
            this.address.selected(choice.set.name);
        this.viewer.choose(choice);
        const name = "set" in choice ? choice.set.name
            : `${choice.variant.name}: ${choice.option.label}`;
        this.page.announce(this.strings.selected(name));
    }

    private reset(): void {
        this.address.selected(undefined);
        this.viewer.reset();
    }

    /** Shows what a link asks for. */
    private open(place: Place, isLater: boolean): void {
        if (isLater)
            this.reset();
        if (place.set !== undefined && !this.select(place.set))
            this.page.tell(this.strings.unknownSet(place.set));
        for (const { kind, variant, option } of place.options) {
            if (!this.chooseByName(kind, variant, option))
                this.page.tell(this.strings.unknownOption(`${variant}: ${option}`));
        }
        if (place.view)
            this.viewer.fly(place.view);
        if (!isLater)
            this.viewer.view.arrive();
    }

    /** Buttons and the address follow together, once for all changes of a moment. */
    private follow(): void {
        if (this.isUpdating)
            return;
        this.isUpdating = true;
        requestAnimationFrame(() => {
            this.isUpdating = false;
            this.panel.update();
            this.caption.show(this.choices.set(this.address.current ?? ""));
            this.address.follow();
        });
    }

    private async share(): Promise<void> {
        const url = this.address.link(this.viewer.view.record());
        try {
            if (navigator.share !== undefined && matchMedia("(pointer: coarse)").matches) {
                await navigator.share({ title: this.viewer.published.title, url });
                return;
            }
            await navigator.clipboard.writeText(url);
            this.page.tell(this.strings.linkCopied);
        } catch (error) {
            if (error instanceof DOMException && error.name === "AbortError")
                return;
            history.replaceState(null, "", url.replace(/^[^#]*/, ""));
            this.page.tell(this.strings.linkNotCopied);
        }
    }

    private addKeys(): void {
        const { sets, variants } = this.viewer.published;
        for (const set of sets)
            this.keys.add(set.key, { set });
        for (const variant of variants) {
            for (const option of variant.options)
                this.keys.add(option.key, { variant, option });
        }
        document.addEventListener("keydown", event => this.press(event));
    }

    private press(event: KeyboardEvent): void {
        const target = event.target as HTMLElement;
        if (event.defaultPrevented || target.closest("input, dialog") || isOfPage(event, target))
            return;
        const { what, isPart } = this.keys.press(event);
        const isHandled = isPart || event.key === "/" || (target === this.page.canvas
            && pressInScene(event, this.viewer.view, () => this.viewer.flyHome()));
        if (what)
            this.choose(what);
        else if (!isPart && event.key === "/")
            this.panel.field.focus();
        if (isHandled)
            event.preventDefault();
    }
}

/** Keys without which nobody gets around a page by the keyboard, whatever sets use them. */
function isOfPage({ key }: KeyboardEvent, target: HTMLElement): boolean {
    return key === "Tab" || ((key === "Enter" || key === " ") && target.closest("button, a") !== null);
}
