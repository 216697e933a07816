import type { Condition, Published, Step } from "./published";

/** What a step does besides changing slots. */
export interface Effects {
    viewpoint?: number;
    clips: number[];
}

/** The integers that say what is shown, and the steps that change them. */
export class States {
    private values: number[];
    private readonly changed = new Set<number>();

    constructor(private readonly published: Published) {
        this.values = [...published.start];
    }

    value(slot: number): number {
        return this.values[slot] ?? 0;
    }

    /** A missing condition says nothing, so it does not hold. */
    holds(condition: Condition | undefined): boolean {
        if (!condition)
            return false;
        return condition.every(([slot, values]) => values.includes(this.value(slot)));
    }

    run(step: Step): Effects {
        for (const assignment of step.assign) {
            const slot = assignment[0];
            if (assignment.length === 2)
                this.set(slot, assignment[1]);
            else
                this.set(slot, assignment[2][String(this.value(assignment[1]))]);
        }
        return { viewpoint: step.viewpoint, clips: this.clipsOf(step) };
    }

    /** Back to the scene as it was opened. */
    reset(): void {
        this.published.start.forEach((value, slot) => this.set(slot, value));
    }

    /** The slots that changed since the last call. */
    takeChanged(): number[] {
        const slots = [...this.changed];
        this.changed.clear();
        return slots;
    }

    private set(slot: number, value: number | undefined): void {
        if (value === undefined || this.values[slot] === value)
            return;
        this.values[slot] = value;
        this.changed.add(slot);
    }

    private clipsOf(step: Step): number[] {
        const clips = step.turn ? [step.turn.clips[this.value(step.turn.slot)]] : step.clips ?? [];
        return clips.filter((clip): clip is number => this.published.clips[clip ?? -1] !== undefined);
    }
}
