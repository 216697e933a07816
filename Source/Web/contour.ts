import { Matrix4, Mesh, Plane, SkinnedMesh, Vector3, type Object3D } from "three";

/** The ends of the lines along which a plane cuts what is shown below an object, in the world. */
export function contourOf(root: Object3D, plane: Plane): number[] {
    const places: number[] = [];
    root.traverseVisible(object => {
        if (object instanceof Mesh && object.layers.isEnabled(0) && crosses(object, plane))
            cut(object, plane, places);
    });
    return places;
}

function crosses(mesh: Mesh, plane: Plane): boolean {
    if (mesh instanceof SkinnedMesh || mesh.morphTargetInfluences)
        return true;
    if (!mesh.geometry.boundingSphere)
        mesh.geometry.computeBoundingSphere();
    const sphere = mesh.geometry.boundingSphere?.clone().applyMatrix4(mesh.matrixWorld);
    return !sphere || Math.abs(plane.distanceToPoint(sphere.center)) <= sphere.radius;
}

function cut(mesh: Mesh, plane: Plane, places: number[]): void {
    const { points, heights } = corners(mesh, plane);
    const { index } = mesh.geometry;
    const count = index ? index.count : heights.length;
    const corner = [0, 0, 0];
    const a = new Vector3();
    const b = new Vector3();
    for (let first = 0; first + 2 < count; first += 3) {
        for (let k = 0; k < 3; ++k)
            corner[k] = index ? index.getX(first + k) : first + k;
        for (let k = 0; k < 3; ++k) {
            const from = corner[k]!;
            const to = corner[(k + 1) % 3]!;
            const [low, high] = [heights[from]!, heights[to]!];
            if (low > 0 === high > 0)
                continue;
            a.fromArray(points, from * 3).lerp(b.fromArray(points, to * 3), low / (low - high));
            places.push(a.x, a.y, a.z);
        }
    }
}

/** All corners in the world, and how high they are above the plane. */
function corners(mesh: Mesh, plane: Plane): { points: Float64Array; heights: Float64Array } {
    const count = mesh.geometry.attributes.position?.count ?? 0;
    const points = new Float64Array(count * 3);
    const heights = new Float64Array(count);
    const toWorld: Matrix4 = mesh.matrixWorld;
    const point = new Vector3();
    for (let i = 0; i < count; ++i) {
        mesh.getVertexPosition(i, point).applyMatrix4(toWorld);
        point.toArray(points, i * 3);
        heights[i] = plane.distanceToPoint(point);
    }
    return { points, heights };
}
