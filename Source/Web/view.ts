import {
    MathUtils, Matrix4, OrthographicCamera, PerspectiveCamera, Quaternion, Vector3,
} from "three";
import { OrbitControls } from "three/addons/controls/OrbitControls.js";
import type { Camera, Published } from "./published";

type ViewCamera = PerspectiveCamera | OrthographicCamera;

/** Pictures that are narrower than this show what such a picture would show at its sides. */
const narrowest = 1.2;
const flightTime = 0.8;

/** A camera on its way: the point it looks at and its distance move, so that it goes around. */
interface Stop {
    target: Vector3;
    distance: number;
    turn: Quaternion;
    size: number;
}

interface Flight {
    from: Stop;
    to: Stop;
    end: Camera;
    time: number;
}

/** Where the page looks from; moved by viewpoints and by hand. */
export class View {
    private readonly perspective = new PerspectiveCamera();
    private readonly parallel = new OrthographicCamera();
    private readonly controls: OrbitControls;
    private readonly centre: Vector3;
    private readonly radius: number;
    private present: Camera;
    private aspect = 1;
    private flight?: Flight;
    /** Whether the camera has been moved by hand since the last viewpoint. */
    private isFree = false;

    /** Is called after each change by hand. */
    onMove = (): void => {};

    constructor(element: HTMLElement, published: Published) {
        const low = new Vector3(...published.box.min);
        const high = new Vector3(...published.box.max);
        this.centre = low.clone().add(high).multiplyScalar(0.5);
        this.radius = Math.max(high.distanceTo(low) / 2, 1e-6);
        this.controls = new OrbitControls(this.perspective, element);
        this.controls.enableDamping = false;
        this.controls.zoomToCursor = true;
        this.controls.addEventListener("start", () => this.begin());
        this.controls.addEventListener("change", () => this.onMove());
        this.present = published.camera;
        this.jump(published.camera);
    }

    get camera(): ViewCamera {
        return this.present.fieldOfView > 0 ? this.perspective : this.parallel;
    }

    get isFlying(): boolean {
        return this.flight !== undefined;
    }

    /** What the camera of the drawn picture shows. */
    record(): Camera {
        const { camera } = this;
        camera.updateMatrixWorld();
        const isPerspective = camera === this.perspective;
        return {
            matrix: camera.matrixWorld.toArray(),
            fieldOfView: isPerspective ? this.perspective.fov : 0,
            height: isPerspective ? 0 : this.parallelHeight(),
            near: this.present.near,
            far: this.present.far,
        };
    }

    resize(width: number, height: number): void {
        this.aspect = width / Math.max(height, 1);
        this.updateProjection();
    }

    jump(camera: Camera): void {
        this.flight = undefined;
        this.isFree = false;
        this.show(camera);
    }

    /** Moves there within a moment; at once for people who asked for less motion. */
    fly(camera: Camera): void {
        const from = this.record();
        const isSameKind = from.fieldOfView > 0 === camera.fieldOfView > 0;
        if (!isSameKind || matchMedia("(prefers-reduced-motion: reduce)").matches) {
            this.jump(camera);
            return;
        }
        this.isFree = false;
        this.flight = { from: this.stop(from), to: this.stop(camera), end: camera, time: 0 };
    }

    /** Lets seconds of a flight pass. */
    advance(seconds: number): void {
        const { flight } = this;
        if (!flight)
            return;
        flight.time += seconds / flightTime;
        if (flight.time >= 1) {
            this.jump(flight.end);
            return;
        }
        this.show(between(flight, MathUtils.smootherstep(flight.time, 0, 1)));
    }

    /** Ends a flight at once. */
    arrive(): void {
        if (this.flight)
            this.jump(this.flight.end);
    }

    /** By the keyboard: radians to the left and up, and a factor of the distance. */
    orbit(left: number, up: number, closer: number): void {
        this.begin();
        if (left)
            this.controls.rotateLeft(left);
        if (up)
            this.controls.rotateUp(up);
        if (closer > 1)
            this.controls.dollyIn(1 / closer);
        else if (closer < 1)
            this.controls.dollyOut(closer);
        this.controls.update();
    }

    pan(right: number, up: number): void {
        this.begin();
        this.controls.pan(-right, up);
        this.controls.update();
    }

    /** Planes that enclose the scene where the camera itself has none. */
    updatePlanes(): void {
        const { camera, present } = this;
        const distance = camera.position.distanceTo(this.centre);
        const reach = distance + this.radius * 8;
        const near = present.near > 0 ? present.near
            : camera === this.parallel ? -reach : Math.max(distance - this.radius * 8, reach / 5000);
        const far = present.far > 0 && !this.isFree ? present.far : Math.max(present.far, reach);
        this.setPlanes(near, far);
    }

    /** Planes for what surrounds the scene, however far away. */
    openPlanes(): void {
        const reach = this.radius * 1e4;
        this.setPlanes(this.camera === this.parallel ? -reach : this.radius * 0.01, reach);
    }

    private show(camera: Camera): void {
        this.present = camera;
        const shown = this.camera;
        new Matrix4().fromArray(camera.matrix)
            .decompose(shown.position, shown.quaternion, shown.scale);
        shown.scale.setScalar(1);
        this.parallel.zoom = 1;
        this.controls.object = shown;
        this.controls.target.copy(this.stop(camera).target);
        this.updateProjection();
        shown.updateMatrixWorld();
    }

    private setPlanes(near: number, far: number): void {
        this.camera.near = near;
        this.camera.far = far;
        this.camera.updateProjectionMatrix();
    }

    private begin(): void {
        this.arrive();
        this.isFree = true;
    }

    private updateProjection(): void {
        const { present, parallel, perspective, aspect } = this;
        const widened = Math.min(1, aspect / narrowest);
        perspective.fov = present.fieldOfView > 0 ? Math.min(present.fieldOfView, 171) : 40;
        perspective.aspect = aspect;
        perspective.zoom = widened;
        const half = present.height / 2 / widened;
        parallel.top = half;
        parallel.bottom = -half;
        parallel.right = half * aspect;
        parallel.left = -half * aspect;
        perspective.updateProjectionMatrix();
        parallel.updateProjectionMatrix();
    }

    private parallelHeight(): number {
        return this.present.height / this.parallel.zoom;
    }

    /** People turn around the point of the line of sight that is nearest to the scene's middle. */
    private stop(camera: Camera): Stop {
        const matrix = new Matrix4().fromArray(camera.matrix);
        const eye = new Vector3().setFromMatrixPosition(matrix);
        const turn = new Quaternion().setFromRotationMatrix(new Matrix4().extractRotation(matrix));
        const ahead = new Vector3(0, 0, -1).applyQuaternion(turn);
        const depth = this.centre.clone().sub(eye).dot(ahead);
        const distance = Math.max(depth, this.radius * 0.1);
        const target = eye.addScaledVector(ahead, distance);
        const size = camera.fieldOfView > 0 ? camera.fieldOfView : camera.height;
        return { target, distance, turn, size };
    }
}

function between({ from, to, end }: Flight, share: number): Camera {
    const turn = from.turn.clone().slerp(to.turn, share);
    const distance = MathUtils.lerp(from.distance, to.distance, share);
    const eye = new Vector3(0, 0, distance).applyQuaternion(turn)
        .add(from.target.clone().lerp(to.target, share));
    const matrix = new Matrix4().compose(eye, turn, new Vector3(1, 1, 1));
    const size = MathUtils.lerp(from.size, to.size, share);
    const isPerspective = end.fieldOfView > 0;
    return {
        matrix: matrix.toArray(),
        fieldOfView: isPerspective ? size : 0,
        height: isPerspective ? 0 : size,
        near: end.near,
        far: end.far,
    };
}
