import { Scene, type Mesh, type Object3D } from "three";
import type { Published } from "./published";
import type { LoadedScene } from "./scene";

/** As many as there are bits for objects and cameras. */
const last = 31;

/** What is drawn apart from the scene: behind it what surrounds it, in front of it overlays. */
export class Layers {
    readonly behind = new Scene();
    readonly inFront = new Scene();
    /** The bits of the layers in front, from back to front. */
    bits: number[] = [];

    fill(published: Published, scene: LoadedScene): void {
        const environment = scene.nodes[published.environment ?? -1];
        if (environment)
            this.move(environment, this.behind, scene);
        const sorted = [...published.overlays].sort((a, b) => a.layer - b.layer);
        const layers = [...new Set(sorted.map(overlay => overlay.layer))];
        this.bits = layers.slice(0, last).map((_layer, index) => index + 1);
        const overlays = new Map<Object3D, number>();
        for (const { node, layer } of sorted) {
            const object = scene.nodes[node];
            if (object)
                overlays.set(object, Math.min(layers.indexOf(layer) + 1, last));
        }
        for (const object of overlays.keys()) {
            if (!hasAbove(object, overlays))
                this.move(object, this.inFront, scene);
        }
        this.inFront.children.forEach(object => assign(object, 0, overlays, scene));
    }

    /** Without the transforms of what is above it. */
    private move(object: Object3D, target: Scene, scene: LoadedScene): void {
        object.removeFromParent();
        target.add(object);
        scene.flatten(object);
    }
}

function hasAbove(object: Object3D, overlays: Map<Object3D, number>): boolean {
    for (let above = object.parent; above; above = above.parent) {
        if (overlays.has(above))
            return true;
    }
    return false;
}

/** An overlay within another one has a layer of its own. */
function assign(object: Object3D, above: number, overlays: Map<Object3D, number>,
                scene: LoadedScene): void {
    const layer = overlays.get(object) ?? above;
    if ((object as Mesh).isMesh)
        scene.setLayer(object as Mesh, layer);
    object.children.forEach(child => assign(child, layer, overlays, scene));
}
