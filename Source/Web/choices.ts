import type { Kind, Option, Published, Set as VariantSet, Variant } from "./published";

/** Something that people select: a set, or an option of a variant. */
export type Choice = { set: VariantSet } | { variant: Variant; option: Option };

/** Finds sets and options by their names. */
export class Choices {
    private readonly sets = new Map<string, VariantSet>();
    private readonly options = new Map<string, Choice & { option: Option }>();

    constructor(published: Published) {
        for (const set of published.sets)
            this.sets.set(set.name, this.sets.get(set.name) ?? set);
        for (const variant of published.variants) {
            for (const option of variant.options)
                this.options.set(keyOf(variant.kind, variant.name, option.name), { variant, option });
        }
    }

    set(name: string): VariantSet | undefined {
        return this.sets.get(name);
    }

    option(kind: string, variant: string, option: string): (Choice & { option: Option }) | undefined {
        return this.options.get(keyOf(kind as Kind, variant, option));
    }
}

function keyOf(kind: Kind, variant: string, option: string): string {
    return JSON.stringify([kind, variant, option]);
}
