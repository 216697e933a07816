import type { Published } from "./published";

/** Why the page cannot show anything; `strings.ts` has the sentences. */
export type Problem = "needsServer" | "missing" | "wrongFormat" | "noWebGL" | "broken";

export class SourceError extends Error {
    constructor(readonly problem: Problem, readonly detail = "") {
        super(detail || problem);
    }
}

export type Progress = (loaded: number) => void;

/** Where the parts of a published scene come from: blocks of this page, or files beside it. */
export class Source {
    /** Loads what #published holds or links to. */
    async published(): Promise<Published> {
        const place = document.getElementById("published");
        if (place instanceof HTMLScriptElement)
            return this.checked(() => JSON.parse(place.text) as Published);
        if (location.protocol === "file:")
            throw new SourceError("needsServer");
        const link = place instanceof HTMLLinkElement ? place.href : "published.json";
        const text = new TextDecoder().decode(await this.bytes(link));
        return this.checked(() => JSON.parse(text) as Published);
    }

    /** The scene's GLB begins to load before the description is known, where the page links to it. */
    linkedScene(progress: Progress): Promise<ArrayBuffer> | undefined {
        if (location.protocol === "file:")
            return undefined;
        const link = document.querySelector<HTMLLinkElement>('link[rel="preload"][as="fetch"]:not(#published)');
        return link ? this.bytes(link.href, progress) : undefined;
    }

    /** The content of a file beside the page, of a data URI, or of the block whose id is after #. */
    async bytes(url: string, progress?: Progress): Promise<ArrayBuffer> {
        if (url.startsWith("#"))
            return fromBase64(document.getElementById(url.slice(1))?.textContent ?? "");
        if (url.startsWith("data:"))
            return fromDataUri(url);
        let response: Response;
        try {
            response = await fetch(url);
        } catch {
            throw new SourceError("missing", fileName(url));
        }
        if (!response.ok)
            throw new SourceError("missing", fileName(url));
        return response.body && progress ? collected(response.body, progress) : response.arrayBuffer();
    }

    private checked(read: () => Published): Published {
        let published: Published;
        try {
            published = read();
        } catch {
            throw new SourceError("wrongFormat");
        }
        if (published?.format !== 1)
            throw new SourceError("wrongFormat");
        return published;
    }
}

async function collected(body: ReadableStream<Uint8Array>, progress: Progress): Promise<ArrayBuffer> {
    const chunks: Uint8Array<ArrayBuffer>[] = [];
    const reader = body.getReader();
    let size = 0;
    for (let part = await reader.read(); !part.done; part = await reader.read()) {
        chunks.push(part.value as Uint8Array<ArrayBuffer>);
        size += part.value.length;
        progress(size);
    }
    return new Blob(chunks).arrayBuffer();
}

function fromDataUri(uri: string): ArrayBuffer {
    const comma = uri.indexOf(",");
    const data = uri.slice(comma + 1);
    if (uri.slice(0, comma).endsWith(";base64"))
        return fromBase64(data);
    return new TextEncoder().encode(decodeURIComponent(data)).buffer as ArrayBuffer;
}

function fromBase64(text: string): ArrayBuffer {
    let binary: string;
    try {
        binary = atob(text.trim());
    } catch {
        throw new SourceError("wrongFormat");
    }
    const bytes = new Uint8Array(binary.length);
    for (let i = 0; i < binary.length; ++i)
        bytes[i] = binary.charCodeAt(i);
    return bytes.buffer;
}

function fileName(url: string): string {
    return url.replace(/[?#].*$/, "").replace(/^.*\//, "");
}
