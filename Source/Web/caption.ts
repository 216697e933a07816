import { element } from "./dom";
import type { Set as VariantSet } from "./published";

/** The name of the chosen set, with its comment and facts, in the picture. */
export class Caption {
    readonly element = element("section", { id: "caption", hidden: true });

    show(set: VariantSet | undefined): void {
        this.element.hidden = !set;
        if (!set)
            return;
        const facts = element("dl", {}, ...(set.facts ?? []).flatMap(([name, value]) =>
            [element("div", {}, element("dt", {}, name), element("dd", {}, value))]));
        this.element.replaceChildren(
            element("h2", {}, set.name),
            ...(set.comment ? [element("p", {}, set.comment)] : []),
            ...(set.facts?.length ? [facts] : []));
    }
}
