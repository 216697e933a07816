import {
    Color, DoubleSide, Mesh, MeshBasicMaterial, MeshStandardMaterial, type AnimationClip,
    type Group, type Material, type Object3D,
} from "three";
import { GLTFLoader, type GLTF } from "three/addons/loaders/GLTFLoader.js";
import { MeshoptDecoder } from "three/addons/libs/meshopt_decoder.module.js";
import type { MaterialChoice, Published } from "./published";
import { SourceError } from "./source";

type Parser = GLTF["parser"];

/** The GLB as objects to draw, found by the positions that nodes and materials have in the file. */
export class LoadedScene {
    readonly root: Group;
    /** By position in the file; undefined for nodes that its scene does not contain. */
    readonly nodes: (Object3D | undefined)[] = [];
    readonly names: string[];
    /** The position of the node that an object stands for. */
    readonly nodeOf = new Map<Object3D, number>();
    /** The parts of a node's mesh, by the node's position. */
    readonly parts: Mesh[][] = [];
    readonly clips: AnimationClip[];
    /** Of meshes that are drawn unlit: overlays and what surrounds the scene. */
    private readonly flat = new Set<Mesh>();
    private readonly layers = new Map<Mesh, number>();
    private readonly flatMaterials = new Map<Material, Material>();
    private readonly worn = new Set<Material>();
    private readonly materials = new Map<number, Material>();
    private readonly parser: Parser;
    private bothSides = false;

    private constructor(gltf: GLTF) {
        this.root = gltf.scene;
        this.clips = gltf.animations;
        this.parser = gltf.parser;
        this.names = this.description().nodes.map(node => node.name ?? "");
        this.root.traverse(object => this.register(object));
        this.nodes.forEach((object, node) => this.collectParts(object, node));
    }

    static async load(data: ArrayBuffer, published: Published): Promise<LoadedScene> {
        const loader = new GLTFLoader();
        loader.setMeshoptDecoder(MeshoptDecoder);
        let gltf: GLTF;
        try {
            gltf = await loader.parseAsync(data, "");
        } catch (error) {
            throw new SourceError("broken", error instanceof Error ? error.message : String(error));
        }
        const scene = new LoadedScene(gltf);
        await scene.loadMaterials(published.wardrobes);
        scene.parts.forEach((meshes, node) => meshes.forEach((mesh, part) => {
            if (scene.materialOf(node, part) === undefined)
                scene.wear(mesh, -1);
            else
                scene.dress(mesh);
        }));
        return scene;
    }

    /** Gives a part a material by its position in the file, -1 for the one of parts without. */
    wear(mesh: Mesh, material: number): void {
        const chosen = this.materials.get(material);
        if (!chosen)
            return;
        mesh.material = chosen;
        this.dress(mesh);
    }

    /** Draws the node and all below it unlit from now on. */
    flatten(object: Object3D): void {
        object.traverse(child => {
            if (!(child instanceof Mesh))
                return;
            this.flat.add(child);
            child.castShadow = child.receiveShadow = false;
            this.dress(child);
        });
    }

    /** In which pass a part is drawn: 0 with the scene, others in front of it. */
    setLayer(mesh: Mesh, layer: number): void {
        this.layers.set(mesh, layer);
        if (isPartShown(mesh))
            mesh.layers.set(layer);
    }

    /** A part disappears by its layer, because what is below the object of its node has to stay. */
    showPart(mesh: Mesh, shown: boolean): void {
        if (shown)
            mesh.layers.set(this.layers.get(mesh) ?? 0);
        else
            mesh.layers.disableAll();
    }

    /** Surfaces that shadows fall on and that cast them; clear ones cast none. */
    takeShadows(): void {
        this.root.traverse(object => {
            if (!(object instanceof Mesh) || this.flat.has(object))
                return;
            object.receiveShadow = true;
            object.castShadow = !(object.material as Material).transparent;
        });
    }

    /** Whether the inner sides of all bodies are visible, too. */
    showBothSides(on: boolean): void {
        if (this.bothSides === on)
            return;
        this.bothSides = on;
        for (const material of this.worn)
            this.setSides(material);
    }

    private description(): { nodes: NodeEntry[]; meshes?: MeshEntry[] } {
        return this.parser.json as { nodes: NodeEntry[]; meshes?: MeshEntry[] };
    }

    private materialOf(node: number, part: number): number | undefined {
        const { nodes, meshes } = this.description();
        return meshes?.[nodes[node]?.mesh ?? -1]?.primitives[part]?.material;
    }

    private register(object: Object3D): void {
        const node = this.parser.associations.get(object)?.nodes;
        object.updateMatrix();
        object.matrixAutoUpdate = false;
        if (node === undefined)
            return;
        this.nodes[node] = object;
        this.nodeOf.set(object, node);
        if (this.description().nodes[node]?.extensions?.KHR_node_visibility?.visible === false)
            object.visible = false;
    }

    /** Objects below the node's own that belong to no other node are what its mesh consists of. */
    private collectParts(object: Object3D | undefined, node: number): void {
        const parts: Mesh[] = [];
        const collect = (child: Object3D) => {
            const place = this.parser.associations.get(child);
            if (place?.nodes !== undefined && place.nodes !== node)
                return;
            if (place?.primitives !== undefined && child instanceof Mesh)
                parts[place.primitives] = child;
            child.children.forEach(collect);
        };
        if (object)
            collect(object);
        this.parts[node] = parts;
    }

    /** All that may be worn is there before the first picture, so that every choice shows at once. */
    private async loadMaterials(wardrobes: MaterialChoice[]): Promise<void> {
        const wanted = new Set<number>();
        const collect = (choice: MaterialChoice): void => {
            if (typeof choice === "number")
                wanted.add(choice);
            else
                Object.values(choice.materials).forEach(collect);
        };
        wardrobes.forEach(collect);
        this.materials.set(-1, plainMaterial());
        wanted.delete(-1);
        await Promise.all([...wanted].map(async index => {
            const material = await this.parser.getDependency("material", index) as Material | null;
            if (material)
                this.materials.set(index, material);
        }));
    }

    private dress(mesh: Mesh): void {
        this.parser.assignFinalMaterial(mesh);
        const material = mesh.material as Material;
        if (this.flat.has(mesh))
            mesh.material = this.flatMaterial(material);
        else if (!this.worn.has(material))
            this.prepare(material);
    }

    private prepare(material: Material): void {
        this.worn.add(material);
        material.userData.side = material.side;
        material.clipShadows = true;
        if (material instanceof MeshBasicMaterial)
            material.toneMapped = false;
        this.setSides(material);
    }

    private setSides(material: Material): void {
        const side = this.bothSides ? DoubleSide : material.userData.side as Material["side"];
        if (material.side === side)
            return;
        material.side = side;
        material.needsUpdate = true;
    }

    private flatMaterial(material: Material): Material {
        if (material instanceof MeshBasicMaterial && !material.toneMapped)
            return material;
        let flat = this.flatMaterials.get(material);
        if (!flat) {
            flat = flattened(material);
            this.flatMaterials.set(material, flat);
        }
        return flat;
    }
}

/** Whether a part is drawn as far as it decides itself. */
export function isPartShown(mesh: Mesh): boolean {
    return mesh.layers.mask !== 0;
}

interface NodeEntry {
    name?: string;
    mesh?: number;
    extensions?: { KHR_node_visibility?: { visible?: boolean } };
}

interface MeshEntry {
    primitives: { material?: number }[];
}

/** What parts without material look like in the program. */
function plainMaterial(): Material {
    return new MeshStandardMaterial({ color: new Color(0.6, 0.6, 0.6), metalness: 0, roughness: 0.6 });
}

function flattened(material: Material): Material {
    const lit = material as MeshStandardMaterial;
    const flat = new MeshBasicMaterial({
        name: material.name,
        map: lit.map ?? null,
        color: lit.color ?? new Color(1, 1, 1),
        vertexColors: material.vertexColors,
        transparent: material.transparent,
        opacity: material.opacity,
        alphaTest: material.alphaTest,
        side: material.side,
        depthWrite: material.depthWrite,
    });
    flat.toneMapped = false;
    return flat;
}
