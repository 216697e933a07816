import { Matrix4, type Mesh } from "three";
import type { Lamps } from "./lamps";
import type { Poses } from "./poses";
import type { Condition, MaterialChoice, NodeBinding, PartBinding, Published } from "./published";
import type { LoadedScene } from "./scene";
import type { States } from "./states";

/** Makes the drawn objects show what the slots stand for. */
export class Bindings {
    /** What has to be brought up to date when a slot changes. */
    private readonly bySlot = new Map<number, Set<() => void>>();
    private readonly all: (() => void)[] = [];

    constructor(private readonly published: Published, private readonly scene: LoadedScene,
                private readonly states: States, private readonly lamps: Lamps,
                private readonly poses: Poses) {
        published.nodes.forEach(binding => this.bindNode(binding));
        published.parts.forEach(binding => this.bindPart(binding));
    }

    applyAll(): void {
        this.all.forEach(apply => apply());
    }

    apply(slots: number[]): void {
        const due = new Set<() => void>();
        for (const slot of slots)
            this.bySlot.get(slot)?.forEach(apply => due.add(apply));
        due.forEach(apply => apply());
    }

    private bindNode(binding: NodeBinding): void {
        const object = this.scene.nodes[binding.node];
        if (!object)
            return;
        const { shown, light, place } = binding;
        if (shown)
            this.bind(slotsOf(shown), () => { object.visible = this.states.holds(shown); });
        if (light)
            this.bind(slotsOf(light), () => this.lamps.turn(object, this.states.holds(light)));
        if (!place)
            return;
        const matrices = new Map(Object.entries(place.matrices)
            .map(([value, matrix]) => [value, new Matrix4().fromArray(matrix)]));
        this.bind([place.slot], () => {
            const matrix = matrices.get(String(this.states.value(place.slot)));
            if (matrix)
                this.poses.place(object, matrix);
        });
    }

    private bindPart(binding: PartBinding): void {
        const mesh = this.scene.parts[binding.node]?.[binding.part];
        if (!mesh)
            return;
        const { shown } = binding;
        if (shown)
            this.bind(slotsOf(shown), () => this.scene.showPart(mesh, this.states.holds(shown)));
        const choice = this.published.wardrobes[binding.wardrobe ?? -1];
        if (choice !== undefined)
            this.bind(slotsOfChoice(choice), () => this.wear(mesh, choice));
    }

    private wear(mesh: Mesh, choice: MaterialChoice): void {
        let chosen: MaterialChoice | undefined = choice;
        while (typeof chosen === "object")
            chosen = chosen.materials[String(this.states.value(chosen.slot))];
        if (chosen !== undefined)
            this.scene.wear(mesh, chosen);
    }

    private bind(slots: Iterable<number>, apply: () => void): void {
        this.all.push(apply);
        for (const slot of slots) {
            const known = this.bySlot.get(slot);
            if (known)
                known.add(apply);
            else
                this.bySlot.set(slot, new Set([apply]));
        }
    }
}

function slotsOf(condition: Condition): number[] {
    return condition.map(([slot]) => slot);
}

function slotsOfChoice(choice: MaterialChoice): number[] {
    if (typeof choice === "number")
        return [];
    return [choice.slot, ...Object.values(choice.materials).flatMap(slotsOfChoice)];
}
