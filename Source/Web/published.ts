/**
 * What "workbench publish" writes into published.json beside the scene: everything that the page
 * shows, worked out by the program. The page knows no rules of variants. It keeps one small integer
 * per slot, changes them by the assignments of steps, and shows what the bindings say the integers
 * stand for.
 *
 * All lengths are those of the scene, matrices are column-major like those of glTF, colours are
 * linear unless a comment says otherwise, and nodes and materials are positions in the lists of the
 * GLB, whose nodes stand at the same positions as in the scene file.
 */
export interface Published {
    /** Of this description; a page refuses another one. */
    format: 1;
    generator: string;
    title: string;
    language: Language;
    /** The GLB, relative to the page. */
    scene: string;
    /** A picture of the scene at the start, as the start view shows it, relative to the page. */
    poster?: string;
    /** Bytes to load, for the progress: of the GLB. */
    bytes: number;

    /** The value of each slot in the scene as it was opened. */
    start: number[];
    /** Where the page looks at the start. */
    camera: Camera;
    /** The box around what is shown at the start, in world coordinates. */
    box: { min: Vector; max: Vector };

    groups: Group[];
    sets: Set[];
    variants: Variant[];
    viewpoints: Viewpoint[];
    clips: Clip[];

    nodes: NodeBinding[];
    /** What parts of nodes show; each part stands at most once. */
    parts: PartBinding[];
    /** What parts may wear, shared by those that wear the same. */
    wardrobes: MaterialChoice[];
    /** Nodes that lie in front of everything, unlit, with all below them; without the transforms of
     * nodes above them. Higher layers lie in front of lower ones. */
    overlays: { node: number; layer: number }[];
    /** The node whose children surround the scene: behind everything, unlit, without shadows, around
     * the camera's world as it is; without the transforms of nodes above it. */
    environment?: number;
    lightings: Lighting[];
    /** Which lighting holds: one, or as a slot chooses. */
    lighting: number | { slot: number; lightings: Table };
    /** By this all lights of the GLB are multiplied. */
    lightFactor: number;
    /** All light is multiplied by two to the power of it. */
    exposure: number;
    /** Where an invisible ground catches shadows; none for a scene with a floor. */
    ground?: { height: number; centre: Vector; radius: number };
    clippings: Clipping[];
    /** The slot whose values are positions in `clippings`. */
    clipping: number;
}

export type Language = "en" | "de";
export type Vector = [number, number, number];
/** Sixteen numbers, column-major. */
export type Matrix = number[];
/** From values of a slot to other numbers; JSON has the values as texts. */
export type Table = Record<string, number>;

/** All of these slots have one of these values. An empty list always holds. */
export type Condition = [slot: number, values: number[]][];

/**
 * `[slot, value]`: the slot takes the value.
 * `[slot, from, table]`: the slot takes what the table has for the present value of the slot `from`;
 * where the table has nothing it keeps its own.
 */
export type Assignment = [slot: number, value: number] | [slot: number, from: number, table: Table];

/** What selecting something does, in this order. */
export interface Step {
    /** One after the other; each sees what those before it did. */
    assign: Assignment[];
    /** The viewpoint that the camera moves to; missing when it stays. */
    viewpoint?: number;
    /** Clips that start. */
    clips?: number[];
    /** Instead of these: the clip that stands at the present value of the slot. */
    turn?: { slot: number; clips: number[] };
}

export interface Group {
    /** Empty for the sets that belong to no group; that one is last. */
    name: string;
    comment: string;
    /** Positions in `sets`. */
    sets: number[];
}

export interface Set {
    name: string;
    comment: string;
    /** A picture relative to the page, or a data URI; missing without one. */
    preview?: string;
    /** A key sequence such as "Ctrl+Shift+F11", with the names of keys that Qt uses; else empty. */
    key: string;
    step: Step;
    /** Whether the scene shows what the set wants; missing for sets that want nothing definite. */
    now?: Condition;
    /** Pairs of the set, such as prices, in their order. */
    facts?: [name: string, value: string][];
}

export type Kind = "node" | "material" | "light" | "overlay" | "transform";

export interface Variant {
    kind: Kind;
    name: string;
    /** In order; actions such as "!Next" last. */
    options: Option[];
}

export interface Option {
    /** As the document has it, such as "Turbine" or "!Enable". */
    name: string;
    /** As people read it in the language of the page, such as "Turbine" or "shown". */
    label: string;
    /** Whether it does something that depends on the present state, such as "next". */
    action: boolean;
    key: string;
    step: Step;
    /** Whether the scene shows it; missing for actions. */
    now?: Condition;
}

export interface Camera {
    /** From camera to world coordinates; the camera looks along its negative z axis, y is up. */
    matrix: Matrix;
    /** Vertical, in degrees; 0 for a parallel projection. */
    fieldOfView: number;
    /** Of the picture, parallel projection only. */
    height: number;
    near: number;
    /** 0 for infinity. */
    far: number;
}

export interface Viewpoint extends Camera {
    name: string;
}

export interface Clip {
    name: string;
    /** Position in the GLB's list of animations. */
    animation: number;
    /** Whether it starts over at its end. */
    loop: boolean;
}

/** What of a node changes; whatever is missing is as the GLB has it. */
export interface NodeBinding {
    node: number;
    /** Whether the node and all below it are there, as far as this node decides. */
    shown?: Condition;
    /** The matrix relative to the node above, by the value of a slot. */
    place?: { slot: number; matrices: Record<string, Matrix> };
    /** Whether the light of the node is on. */
    light?: Condition;
}

export interface PartBinding {
    node: number;
    /** Position in the primitives of the node's mesh. */
    part: number;
    shown?: Condition;
    /** Position in `wardrobes`; missing for the material of the GLB. */
    wardrobe?: number;
}

/** A material of the GLB, -1 for the one of parts without material, or what a slot chooses. */
export type MaterialChoice = number | { slot: number; materials: Record<string, MaterialChoice> };

export interface Lighting {
    /** A Radiance picture of all directions, as equirectangular projections have them, relative to
     * the page or as a data URI; the middle looks along x, y is up, as three.js reads them. */
    picture: string;
    /** Whether it is also what is seen behind the scene. Otherwise `backdrop` is. */
    seen: boolean;
    /** sRGB, upper and lower colour of a gradient. */
    backdrop: [string, string];
}

export interface Clipping {
    enabled: boolean;
    position: Vector;
    /** What it points to is cut away, with `invert` the other half. */
    normal: Vector;
    invert: boolean;
    /** Shows plane, grid and contour without the scene. */
    hideScene: boolean;
    /** sRGB, as #rrggbb; missing when it is not drawn. */
    plane?: string;
    grid?: string;
    contour?: string;
    contourWidth: number;
}

/**
 * What is shown, as "workbench select --json --record" has it too: of the drawn scene, not of the
 * slots. Numbers in world coordinates.
 */
export interface SceneRecord {
    nodes: NodeRecord[];
    camera: Camera;
    /** Of the environment's children the shown ones, positions of nodes. */
    environment: number[];
    clipping: Clipping;
}

/** Of one node of the GLB. */
export interface NodeRecord {
    node: number;
    name: string;
    /** Whether the node is drawn: it and all above it are shown and chosen. */
    shown: boolean;
    matrix: Matrix;
    /** Whether its light is on, whether shown or not; missing without a light. */
    light?: boolean;
    /** The parts of its mesh in order; missing without a mesh. */
    parts?: { shown: boolean; material: string }[];
}
