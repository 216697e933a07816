import { DirectionalLight, Group, Object3D, SpotLight, type Light } from "three";
import type { LoadedScene } from "./scene";

interface Lamp {
    node: Object3D;
    origin: Light;
    shining: Light;
    on: boolean;
}

/**
 * The lights of the scene. A light that is hidden or off shines with intensity 0 instead of being
 * left out, because the number of lights is compiled into the shaders. So what shines are copies
 * outside of the scene, which are where the scene has the originals. Those that have not shone yet
 * are left out until there is time to compile for all.
 */
export class Lamps {
    readonly group = new Group();
    private readonly lamps = new Map<Object3D, Lamp>();
    private readonly hasShone = new Set<Light>();

    constructor(scene: LoadedScene, private readonly factor: number) {
        const lights: Light[] = [];
        scene.root.traverse(object => {
            if ((object as Light).isLight)
                lights.push(object as Light);
        });
        for (const light of lights)
            this.add(light, scene.nodeOf.has(light) ? light : light.parent ?? light);
    }

    turn(node: Object3D, on: boolean): void {
        const lamp = this.lamps.get(node);
        if (lamp)
            lamp.on = on;
    }

    /** Whether the node's light is on, shown or not; undefined without a light. */
    isOn(node: Object3D): boolean | undefined {
        return this.lamps.get(node)?.on;
    }

    /** Brings the copies to where the originals are; world matrices must be up to date. */
    update(isShown: (object: Object3D) => boolean): void {
        for (const { on, origin, shining } of this.lamps.values()) {
            shining.matrixWorld.copy(origin.matrixWorld);
            shining.intensity = on && isShown(origin) ? origin.intensity * this.factor : 0;
            if (shining.intensity > 0)
                this.hasShone.add(shining);
            shining.visible = this.hasShone.has(shining);
            const { target } = shining as SpotLight;
            target?.matrixWorld.makeTranslation(0, 0, -1).premultiply(origin.matrixWorld);
        }
    }

    /** From now on every light may shine without delay. */
    includeAll(): void {
        for (const { shining } of this.lamps.values())
            this.hasShone.add(shining);
    }

    /** Lets the strongest lights that shine now cast shadows, once and for all; how many do. */
    castShadows(most: number, radius: number): number {
        const strongest = [...this.lamps.values()].map(lamp => lamp.shining)
            .filter(light => light instanceof SpotLight || light instanceof DirectionalLight)
            .filter(light => light.intensity > 0)
            .sort((a, b) => b.intensity - a.intensity)
            .slice(0, most);
        strongest.forEach(light => prepareShadow(light, radius));
        return strongest.length;
    }

    private add(origin: Light, node: Object3D): void {
        const shining = origin.clone(false);
        const { target } = shining as SpotLight;
        for (const object of target ? [shining, target] : [shining])
            object.matrixAutoUpdate = object.matrixWorldAutoUpdate = false;
        origin.layers.disableAll();
        this.group.add(shining);
        this.lamps.set(node, { node, origin, shining, on: true });
    }
}

function prepareShadow(light: SpotLight | DirectionalLight, radius: number): void {
    light.castShadow = true;
    const { shadow } = light;
    shadow.mapSize.set(1024, 1024);
    shadow.bias = -0.0005;
    shadow.normalBias = radius * 0.004;
    shadow.radius = 3;
    const { camera } = shadow;
    camera.near = radius * 0.001;
    if (!(light instanceof DirectionalLight))
        return;
    const { camera: box } = light.shadow;
    box.left = box.bottom = -radius;
    box.right = box.top = radius;
    box.near = -4 * radius;
    box.far = 4 * radius;
}
