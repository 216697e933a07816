import { type Material, type Mesh, type Object3D } from "three";
import type { Lamps } from "./lamps";
import type { Clipping, NodeRecord, Published, SceneRecord } from "./published";
import { isPartShown, type LoadedScene } from "./scene";
import type { View } from "./view";

/** Whether an object and all above it are there. */
export function isShown(object: Object3D): boolean {
    for (let above: Object3D | null = object; above; above = above.parent) {
        if (!above.visible)
            return false;
    }
    return true;
}

/** What the drawn objects show; their world matrices must be up to date. */
export function recordOf(published: Published, scene: LoadedScene, lamps: Lamps, view: View,
                         clipping: Clipping): SceneRecord {
    const nodes: NodeRecord[] = [];
    scene.nodes.forEach((object, node) => {
        if (object)
            nodes.push(nodeRecord(scene, lamps, object, node));
    });
    return {
        nodes,
        camera: view.record(),
        environment: shownEnvironment(published, scene),
        clipping,
    };
}

function nodeRecord(scene: LoadedScene, lamps: Lamps, object: Object3D, node: number): NodeRecord {
    const shown = isShown(object);
    const parts = scene.parts[node] ?? [];
    const light = lamps.isOn(object);
    return {
        node,
        name: scene.names[node] ?? "",
        shown,
        matrix: object.matrixWorld.toArray(),
        ...(light === undefined ? {} : { light }),
        ...(parts.length ? { parts: parts.map(part => partRecord(part)) } : {}),
    };
}

function partRecord(part: Mesh): { shown: boolean; material: string } {
    return {
        shown: isShown(part) && isPartShown(part),
        material: (part.material as Material).name,
    };
}

function shownEnvironment(published: Published, scene: LoadedScene): number[] {
    const node = scene.nodes[published.environment ?? -1];
    if (!node)
        return [];
    return node.children.filter(child => isShown(child))
        .map(child => scene.nodeOf.get(child))
        .filter((child): child is number => child !== undefined);
}
