import { button, byId, element, icon } from "./dom";
import { helpDialog } from "./help";
import type { Published } from "./published";
import { SourceError } from "./source";
import type { Strings } from "./strings";
import { isDark, setDark } from "./theme";

export interface ToolEvents {
    reset(): void;
    share(): void;
}

/** What belongs to the page itself: progress, errors, notices, tools. */
export class Page {
    readonly canvas = byId<HTMLCanvasElement>("picture");
    readonly stage = byId("stage");
    private readonly status = element("p", { id: "status", role: "status", class: "unseen" });
    private readonly notice = element("p", { id: "notice", role: "alert", hidden: true });
    private timer = 0;

    constructor(private readonly strings: Strings) {
        const skip = element("a", { class: "skip", href: "#search" }, strings.skip);
        skip.addEventListener("click", event => {
            event.preventDefault();
            document.getElementById("search")?.focus();
        });
        this.stage.prepend(skip);
        this.canvas.setAttribute("aria-label", strings.scene);
        this.canvas.setAttribute("role", "application");
        const hint = element("p", { id: "sceneHint", class: "unseen" }, strings.sceneHint);
        this.canvas.setAttribute("aria-describedby", hint.id);
        this.stage.append(hint, this.status, this.notice);
        byId("progressText").textContent = strings.loading;
        byId("progress").setAttribute("aria-label", strings.loading);
    }

    poster(url: string): void {
        const picture = byId<HTMLImageElement>("poster");
        picture.hidden = false;
        if (picture.getAttribute("src") !== url)
            picture.src = url;
    }

    progress(loaded: number, all: number): void {
        const megabytes = (bytes: number) =>
            (bytes / 1e6).toLocaleString(document.documentElement.lang, { maximumFractionDigits: 1 });
        byId<HTMLProgressElement>("progress").value = Math.min(loaded / Math.max(all, 1), 1);
        byId("progressText").textContent = this.strings.loaded(megabytes(loaded), megabytes(all));
    }

    /** The picture is there. */
    open(): void {
        byId("loading").remove();
        this.stage.classList.add("open");
        const poster = byId("poster");
        poster.addEventListener("transitionend", () => poster.remove());
        window.setTimeout(() => poster.remove(), 1000);
    }

    /** Says it to those who cannot see it. */
    announce(text: string): void {
        this.status.textContent = text;
    }

    /** Says it to everybody, for a while. */
    tell(text: string): void {
        this.notice.textContent = text;
        this.notice.hidden = false;
        clearTimeout(this.timer);
        this.timer = window.setTimeout(() => { this.notice.hidden = true; }, 8000);
    }

    fail(error: unknown): void {
        const problem = error instanceof SourceError ? error.problem : "broken";
        const detail = error instanceof Error && error.message !== problem ? error.message : "";
        const again = button({ class: "action" }, () => location.reload(), this.strings.retry);
        byId("loading")?.remove();
        this.stage.append(element("div", { id: "failure", role: "alert" },
                                  element("p", {}, this.strings.problems[problem]),
                                  detail ? element("p", {}, element("code", {}, detail)) : undefined,
                                  problem === "needsServer" ? undefined : again));
        document.documentElement.dataset.failed = problem;
    }

    addTools(published: Published, events: ToolEvents): void {
        const { strings } = this;
        const help = helpDialog(published, strings);
        document.body.append(help);
        const theme = this.tool("theme", strings.dark, () => {
            setDark(!isDark());
            nameTheme();
        });
        const nameTheme = () => name(theme, isDark() ? strings.light : strings.dark);
        nameTheme();
        this.stage.append(element("div", { id: "tools", role: "group", "aria-label": strings.tools },
                                  this.tool("reset", strings.reset, () => events.reset()),
                                  this.tool("share", strings.share, () => events.share()), theme,
                                  this.tool("help", strings.help, () => help.showModal())));
    }

    private tool(kind: Parameters<typeof icon>[0], text: string, act: () => void): HTMLButtonElement {
        const made = button({ class: "tool", id: `tool-${kind}` }, act, icon(kind));
        name(made, text);
        return made;
    }
}

function name(made: HTMLElement, text: string): void {
    made.title = text;
    made.setAttribute("aria-label", text);
}
