import {
    ClampToEdgeWrapping, CubeTexture, DataTexture, DataUtils, HalfFloatType, LinearFilter,
    LinearMipmapLinearFilter, LinearSRGBColorSpace, RGBAFormat, Vector3,
} from "three";

/** Of one level: the light from all directions, three numbers for each place of six faces. */
interface Level {
    size: number;
    light: Float32Array;
}

/** A direction around the normal that counts for a roughness. */
interface Sample {
    x: number;
    y: number;
    z: number;
    /** The level of the sharp cube whose places are as large as what the sample stands for. */
    level: number;
}

const largest = 128;
/** The renderer takes the roughest level for what matt surfaces get. */
const smallest = 8;

/**
 * What mirrors of each roughness show, as the renderer expects it: a cube whose levels are from
 * sharp to matt. It is worked out here, as that takes drawing without graphics hardware seconds.
 * See Karis, "Real Shading in Unreal Engine 4", 2013, on filtering light beforehand.
 */
export function lightCubeOf(picture: DataTexture): CubeTexture {
    const { width } = picture.image;
    const size = Math.min(2 ** Math.max(Math.ceil(Math.log2(width / 4)), 5), largest);
    const sharp = halved(sharpLevel(picture, size));
    const last = Math.log2(size / smallest);
    const levels = sharp.slice(0, last + 1).map((level, lod) =>
        lod === 0 ? level : rough(sharp, level.size, 1 - Math.sqrt(1 - lod / last)));
    // The renderer counts one level less than there are.
    levels.push(sharp[last + 1] as Level);
    return cubeOf(levels);
}

function cubeOf(levels: Level[]): CubeTexture {
    const [base, ...others] = levels.map(level => {
        const cube = new CubeTexture(facesOf(level) as unknown as HTMLImageElement[]);
        cube.format = RGBAFormat;
        cube.type = HalfFloatType;
        return cube;
    });
    const cube = base as CubeTexture;
    cube.mipmaps = others as unknown as typeof cube.mipmaps;
    cube.colorSpace = LinearSRGBColorSpace;
    cube.generateMipmaps = false;
    cube.minFilter = LinearMipmapLinearFilter;
    cube.magFilter = LinearFilter;
    cube.wrapS = cube.wrapT = ClampToEdgeWrapping;
    (cube as CubeTexture & { isPMREMTexture: boolean }).isPMREMTexture = true;
    cube.needsUpdate = true;
    return cube;
}

function facesOf({ size, light }: Level): DataTexture[] {
    const places = size * size;
    return [0, 1, 2, 3, 4, 5].map(face => {
        const data = new Uint16Array(places * 4);
        for (let i = 0; i < places; ++i) {
            const from = (face * places + i) * 3;
            for (let k = 0; k < 3; ++k)
                data[i * 4 + k] = DataUtils.toHalfFloat(Math.min(light[from + k]!, 65504));
            data[i * 4 + 3] = 15360;
        }
        return new DataTexture(data, size, size, RGBAFormat, HalfFloatType);
    });
}

/** The directions of the places of a cube, face by face; cubes are seen from inside, so x is left. */
function directionOf(face: number, s: number, t: number, to: Vector3): Vector3 {
    switch (face) {
    case 0: return to.set(-1, -t, -s).normalize();
    case 1: return to.set(1, -t, s).normalize();
    case 2: return to.set(-s, 1, t).normalize();
    case 3: return to.set(-s, -1, -t).normalize();
    case 4: return to.set(-s, -t, 1).normalize();
    default: return to.set(s, -t, -1).normalize();
    }
}

/** Calls back with the direction of each place and where its three numbers are. */
function eachPlace(size: number, visit: (direction: Vector3, at: number) => void): void {
    const direction = new Vector3();
    let at = 0;
    for (let face = 0; face < 6; ++face) {
        for (let row = 0; row < size; ++row) {
            for (let column = 0; column < size; ++column, at += 3) {
                const s = (column + 0.5) / size * 2 - 1;
                const t = (row + 0.5) / size * 2 - 1;
                visit(directionOf(face, s, t, direction), at);
            }
        }
    }
}

function sharpLevel(picture: DataTexture, size: number): Level {
    const { width, height } = picture.image;
    const source = Float32Array.from(picture.image.data as Uint16Array, DataUtils.fromHalfFloat);
    const light = new Float32Array(size * size * 18);
    eachPlace(size, (direction, at) => {
        const x = (Math.atan2(direction.z, direction.x) / (2 * Math.PI) + 0.5) * width - 0.5;
        const y = (0.5 - Math.asin(direction.y) / Math.PI) * height - 0.5;
        const [left, top] = [Math.floor(x), Math.floor(y)];
        for (let corner = 0; corner < 4; ++corner) {
            const [right, down] = [corner & 1, corner >> 1];
            const share = (right ? x - left : 1 - x + left) * (down ? y - top : 1 - y + top);
            const column = (left + right + width) % width;
            const row = Math.min(Math.max(top + down, 0), height - 1);
            const from = (row * width + column) * 4;
            for (let k = 0; k < 3; ++k)
                light[at + k]! += source[from + k]! * share;
        }
    });
    return { size, light };
}

/** The level and the coarser ones, down to one place for each face. */
function halved(sharp: Level): Level[] {
    const levels = [sharp];
    for (let size = sharp.size / 2; size >= 1; size /= 2) {
        const { light: above } = levels[levels.length - 1]!;
        const light = new Float32Array(size * size * 18);
        for (let face = 0; face < 6; ++face) {
            for (let i = 0; i < size * size; ++i) {
                const [row, column] = [Math.floor(i / size), i % size];
                const from = (face * size * size * 4 + row * size * 4 + column * 2) * 3;
                for (let k = 0; k < 3; ++k) {
                    light[(face * size * size + i) * 3 + k] = (above[from + k]! + above[from + 3 + k]!
                        + above[from + size * 6 + k]! + above[from + size * 6 + 3 + k]!) / 4;
                }
            }
        }
        levels.push({ size, light });
    }
    return levels;
}

function rough(sharp: Level[], size: number, roughness: number): Level {
    const samples = samplesOf(roughness, sharp[0]!.size, sharp.length - 1);
    const light = new Float32Array(size * size * 18);
    const right = new Vector3();
    const up = new Vector3();
    const way = new Vector3();
    eachPlace(size, (normal, at) => {
        right.set(normal.z, 0, -normal.x);
        if (Math.abs(normal.y) > 0.9)
            right.set(0, -normal.z, normal.y);
        right.normalize();
        up.crossVectors(normal, right);
        let weight = 0;
        for (const { x, y, z, level } of samples) {
            way.set(normal.x * z + right.x * x + up.x * y, normal.y * z + right.y * x + up.y * y,
                    normal.z * z + right.z * x + up.z * y);
            addLight(sharp[level]!, way, z, light, at);
            weight += z;
        }
        for (let k = 0; k < 3; ++k)
            light[at + k]! /= weight;
    });
    return { size, light };
}

/** Spread as mirrors of that roughness reflect what they face (GGX), weighted by the cosine. */
function samplesOf(roughness: number, size: number, coarsest: number): Sample[] {
    const samples: Sample[] = [];
    const count = Math.round(24 + 72 * roughness);
    const alpha = (roughness * roughness) ** 2;
    for (let i = 0; i < count; ++i) {
        const share = (i + 0.5) / count;
        const cosine = Math.sqrt((1 - share) / (1 + (alpha - 1) * share));
        const z = 2 * cosine * cosine - 1;
        if (z <= 0)
            continue;
        const beside = Math.sqrt(1 - z * z);
        const turn = i * 2.399963229728653;
        const spread = alpha / (Math.PI * (cosine * cosine * (alpha - 1) + 1) ** 2) / 4;
        const places = 6 * size * size / (4 * Math.PI) / (count * spread);
        const level = Math.round(Math.max(0.5 * Math.log2(places) + 0.5, 0));
        samples.push({
            x: beside * Math.cos(turn), y: beside * Math.sin(turn), z,
            level: Math.min(level, coarsest),
        });
    }
    return samples;
}

/** Adds the light from a direction, as it is at the nearest place. */
function addLight({ size, light }: Level, way: Vector3, weight: number, sum: Float32Array,
                  at: number): void {
    const [x, y, z] = [-way.x, way.y, way.z];
    const [ax, ay, az] = [Math.abs(x), Math.abs(y), Math.abs(z)];
    let face: number;
    let s: number;
    let t: number;
    if (ax >= ay && ax >= az) {
        face = x > 0 ? 0 : 1;
        s = (x > 0 ? -z : z) / ax;
        t = -y / ax;
    } else if (ay >= az) {
        face = y > 0 ? 2 : 3;
        s = x / ay;
        t = (y > 0 ? z : -z) / ay;
    } else {
        face = z > 0 ? 4 : 5;
        s = (z > 0 ? x : -x) / az;
        t = -y / az;
    }
    const column = Math.min(Math.floor((s + 1) / 2 * size), size - 1);
    const row = Math.min(Math.floor((t + 1) / 2 * size), size - 1);
    const from = (face * size * size + row * size + column) * 3;
    for (let k = 0; k < 3; ++k)
        sum[at + k]! += light[from + k]! * weight;
}
