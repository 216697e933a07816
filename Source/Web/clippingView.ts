import {
    Color, DoubleSide, Group, LineBasicMaterial, LineSegments, BufferGeometry, Matrix4, Mesh,
    MeshBasicMaterial, Plane, PlaneGeometry, Vector3, Float32BufferAttribute, type Object3D,
    type Vector2,
} from "three";
import { LineMaterial } from "three/addons/lines/LineMaterial.js";
import { LineSegments2 } from "three/addons/lines/LineSegments2.js";
import { LineSegmentsGeometry } from "three/addons/lines/LineSegmentsGeometry.js";
import { contourOf } from "./contour";
import type { Clipping, Published } from "./published";

/** The plane that cuts the scene, and what is drawn of it. */
export class ClippingView {
    /** Plane, grid and contour. */
    readonly group = new Group();
    readonly planes: Plane[] = [];
    private present?: Clipping;
    private readonly centre: Vector3;
    private readonly halfSize: number;
    private readonly contour = new LineSegments2(new LineSegmentsGeometry(), new LineMaterial());

    constructor({ box }: Published) {
        const low = new Vector3(...box.min);
        const high = new Vector3(...box.max);
        this.centre = low.clone().add(high).multiplyScalar(0.5);
        this.halfSize = high.distanceTo(low) / 2 * 1.05;
        this.contour.material.toneMapped = false;
        this.contour.material.polygonOffset = true;
        this.contour.material.polygonOffsetFactor = -2;
        this.contour.material.polygonOffsetUnits = -8;
        this.contour.frustumCulled = false;
    }

    get isActive(): boolean {
        return this.planes.length > 0;
    }

    get hidesScene(): boolean {
        return this.isActive && this.present?.hideScene === true;
    }

    /** Shows these settings; the contour waits for `cut`. */
    show(clipping: Clipping): void {
        if (clipping === this.present)
            return;
        this.present = clipping;
        this.planes.length = 0;
        this.group.clear();
        const normal = new Vector3(...clipping.normal).normalize();
        if (!clipping.enabled || !(normal.lengthSq() > 0.5))
            return;
        const point = new Vector3(...clipping.position);
        const away = clipping.invert ? normal.clone().negate() : normal;
        this.planes.push(new Plane().setFromNormalAndCoplanarPoint(away.clone().negate(), point));
        this.addSquare(clipping, normal, point);
        if (clipping.contour && clipping.contourWidth > 0) {
            this.contour.material.color = new Color(clipping.contour);
            this.contour.material.linewidth = Math.min(clipping.contourWidth, 64);
            this.group.add(this.contour);
        }
    }

    /** Brings the contour to where the plane cuts what is shown now. */
    cut(root: Object3D): void {
        const [plane] = this.planes;
        if (!plane || this.contour.parent !== this.group)
            return;
        const places = contourOf(root, plane);
        this.contour.geometry.dispose();
        this.contour.geometry = new LineSegmentsGeometry();
        this.contour.visible = places.length > 0;
        if (places.length)
            this.contour.geometry.setPositions(places);
    }

    resize(size: Vector2): void {
        this.contour.material.resolution.copy(size);
    }

    private addSquare(clipping: Clipping, normal: Vector3, point: Vector3): void {
        const middle = this.centre.clone()
            .addScaledVector(normal, -normal.dot(this.centre.clone().sub(point)));
        const other = Math.abs(normal.x) > 0.7 ? new Vector3(0, 1, 0) : new Vector3(1, 0, 0);
        const right = other.cross(normal).normalize();
        const up = normal.clone().cross(right);
        const place = new Matrix4().makeBasis(right, up, normal).setPosition(middle);
        if (clipping.plane)
            this.add(squareOf(this.halfSize, clipping.plane), place);
        if (clipping.grid)
            this.add(gridOf(this.halfSize, clipping.grid), place);
    }

    private add(object: Object3D, place: Matrix4): void {
        object.matrixAutoUpdate = false;
        object.matrix.copy(place);
        this.group.add(object);
    }
}

function squareOf(half: number, colour: string): Mesh {
    const material = new MeshBasicMaterial({
        color: colour, opacity: 0.35, transparent: true, depthWrite: false, side: DoubleSide,
        toneMapped: false, polygonOffset: true, polygonOffsetFactor: -1, polygonOffsetUnits: -4,
    });
    return new Mesh(new PlaneGeometry(half * 2, half * 2), material);
}

function gridOf(half: number, colour: string): LineSegments {
    const places: number[] = [];
    const step = gridStep(half * 2);
    for (let line = Math.ceil(-half / step); line * step <= half; ++line) {
        const at = line * step;
        places.push(at, -half, 0, at, half, 0, -half, at, 0, half, at, 0);
    }
    const geometry = new BufferGeometry();
    geometry.setAttribute("position", new Float32BufferAttribute(places, 3));
    return new LineSegments(geometry, new LineBasicMaterial({ color: colour, toneMapped: false }));
}

/** A round distance for lines, so that some ten fit into the size. */
function gridStep(size: number): number {
    const power = 10 ** Math.floor(Math.log10(size / 10));
    const digits = size / 10 / power;
    return power * (digits < 1.5 ? 1 : digits < 3.5 ? 2 : digits < 7.5 ? 5 : 10);
}
