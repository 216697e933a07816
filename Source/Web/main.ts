import { App } from "./app";
import { Page } from "./page";
import type { Language, Published, SceneRecord } from "./published";
import { Source } from "./source";
import { stringsOf } from "./strings";
import { restoreTheme } from "./theme";
import { Viewer } from "./viewer";

/** For scripts that drive the page, such as tests. */
export interface ViewerApi {
    /** The first picture is there; rejected when the page cannot show the scene. */
    ready: Promise<void>;
    /** Also what the first picture does without. */
    complete: Promise<void>;
    published?: Published;
    /** Selects a set by its name; false when there is none. */
    select(name: string): boolean;
    /** Chooses an option of a variant by their names; false when there is none. */
    choose(kind: string, variant: string, option: string): boolean;
    /** The scene as it was opened. */
    reset(): void;
    /** What the drawn objects show, with clips at rest and the camera at its destination. */
    record(): SceneRecord;
    /** After the next picture. */
    drawn(): Promise<void>;
    /** Drawn pictures since the start. */
    pictures(): number;
}

declare global {
    interface Window {
        qxViewer: ViewerApi;
    }
}

function start(): void {
    restoreTheme();
    const strings = stringsOf(document.documentElement.lang as Language);
    const page = new Page(strings);
    const source = new Source();
    let viewer: Viewer | undefined;
    let app: App | undefined;
    const notYet = (): never => { throw new Error("The scene is not loaded yet."); };

    async function open(): Promise<void> {
        let bytes = 0;
        const linkedPoster = document.querySelector<HTMLLinkElement>('link[as="image"]');
        if (linkedPoster)
            page.poster(linkedPoster.href);
        const progress = (loaded: number) => { if (bytes) page.progress(loaded, bytes); };
        const linked = source.linkedScene(progress);
        linked?.catch(() => {});
        const published = await source.published();
        bytes = published.bytes;
        window.qxViewer.published = published;
        if (published.poster)
            page.poster(published.poster);
        viewer = new Viewer(published, source, page.canvas);
        app = new App(viewer, page, strings);
        await viewer.open(linked ?? source.bytes(published.scene, progress));
        page.open();
        performance.mark("qxFirstPicture");
    }

    const ready = open();
    const complete = ready.then(() => new Promise(resolve => setTimeout(resolve)))
        .then(() => viewer?.complete());
    complete.catch(() => {});
    window.qxViewer = {
        ready, complete,
        select: name => app?.select(name) ?? notYet(),
        choose: (kind, variant, option) => app?.chooseByName(kind, variant, option) ?? notYet(),
        reset: () => (viewer ?? notYet()).reset(),
        record: () => viewer?.record() ?? notYet(),
        drawn: () => viewer?.stage.drawn() ?? notYet(),
        pictures: () => viewer?.stage.pictures ?? 0,
    };
    ready.catch((error: unknown) => page.fail(error));
}

start();
