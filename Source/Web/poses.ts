import {
    Matrix4, Object3D, PropertyBinding, Quaternion, Vector3, type AnimationClip, type Interpolant,
    type KeyframeTrack, type Mesh,
} from "three";
import type { Clip } from "./published";
import type { LoadedScene } from "./scene";

interface Channel {
    object: Object3D;
    property: string;
    sampler: Interpolant;
}

interface PlayedClip {
    channels: Channel[];
    duration: number;
    loop: boolean;
    /** Seconds since the start; undefined at rest. */
    time?: number;
}

/** How an animated node stands when no clip plays. */
interface Rest {
    position: Vector3;
    quaternion: Quaternion;
    scale: Vector3;
    weights: Map<Mesh, number[]>;
}

/** Where nodes stand: as states place them, and above that as the playing clips move them. */
export class Poses {
    private readonly clips: PlayedClip[];
    private readonly rests = new Map<Object3D, Rest>();

    /** Is called when a clip has come to its end. */
    onEnd = (): void => {};

    constructor(scene: LoadedScene, clips: Clip[]) {
        const objects = new Map<string, Object3D>();
        scene.root.traverse(object => {
            objects.set(object.uuid, object);
            if (object.name)
                objects.set(object.name, object);
        });
        this.clips = clips.map(clip => {
            const animation = scene.clips[clip.animation];
            const channels = animation ? this.channels(animation, objects) : [];
            return { channels, duration: animation?.duration ?? 0, loop: clip.loop };
        });
    }

    /** Puts a node where a state wants it; a clip that plays still moves it. */
    place(object: Object3D, matrix: Matrix4): void {
        const rest = this.rests.get(object);
        if (rest)
            matrix.decompose(rest.position, rest.quaternion, rest.scale);
        object.matrix.copy(matrix);
        object.matrixWorldNeedsUpdate = true;
        if (rest)
            this.pose();
    }

    start(clip: number): void {
        const started = this.clips[clip];
        if (started)
            started.time = 0;
    }

    /** What only this clip moved is at rest again. */
    stop(clip: number): void {
        const stopped = this.clips[clip];
        if (stopped)
            stopped.time = undefined;
        this.pose();
    }

    stopAll(): void {
        for (const clip of this.clips)
            clip.time = undefined;
        this.pose();
    }

    isPlaying(clip: number): boolean {
        const played = this.clips[clip];
        return played?.time !== undefined && (played.loop || played.time < played.duration);
    }

    /** Lets seconds pass; false when nothing moves any more. */
    advance(seconds: number): boolean {
        let moves = false;
        let ends = false;
        for (const clip of this.clips) {
            if (clip.time === undefined || (!clip.loop && clip.time >= clip.duration))
                continue;
            clip.time += seconds;
            if (clip.time >= clip.duration) {
                clip.time = clip.loop && clip.duration > 0 ? clip.time % clip.duration : clip.duration;
                ends ||= !clip.loop;
            }
            moves = true;
        }
        if (moves)
            this.pose();
        if (ends)
            this.onEnd();
        return moves;
    }

    /** Calls back while all nodes stand as they do without clips. */
    atRest<T>(read: () => T): T {
        const times = this.clips.map(clip => clip.time);
        this.stopAll();
        const result = read();
        this.clips.forEach((clip, index) => { clip.time = times[index]; });
        this.pose();
        return result;
    }

    private pose(): void {
        for (const [object, rest] of this.rests) {
            object.position.copy(rest.position);
            object.quaternion.copy(rest.quaternion);
            object.scale.copy(rest.scale);
            rest.weights.forEach((weights, mesh) => { mesh.morphTargetInfluences = [...weights]; });
        }
        for (const clip of this.clips) {
            if (clip.time !== undefined)
                clip.channels.forEach(channel => move(channel, clip.time as number));
        }
        for (const object of this.rests.keys()) {
            object.updateMatrix();
            object.matrixWorldNeedsUpdate = true;
        }
    }

    private channels(animation: AnimationClip, objects: Map<string, Object3D>): Channel[] {
        const channels: Channel[] = [];
        for (const track of animation.tracks) {
            const { nodeName, propertyName } = PropertyBinding.parseTrackName(track.name);
            const object = objects.get(nodeName);
            if (!object)
                continue;
            this.remember(object);
            channels.push({ object, property: propertyName, sampler: samplerOf(track) });
        }
        return channels;
    }

    private remember(object: Object3D): void {
        if (this.rests.has(object))
            return;
        const weights = new Map<Mesh, number[]>();
        const influences = (object as Mesh).morphTargetInfluences;
        if (influences)
            weights.set(object as Mesh, [...influences]);
        this.rests.set(object, {
            position: object.position.clone(),
            quaternion: object.quaternion.clone(),
            scale: object.scale.clone(),
            weights,
        });
    }
}

/** Tracks of cubic splines bring a sampler of their own. */
function samplerOf(track: KeyframeTrack): Interpolant {
    const make = (track as unknown as { createInterpolant(): Interpolant }).createInterpolant;
    return make.call(track);
}

function move({ object, property, sampler }: Channel, time: number): void {
    const values = sampler.evaluate(time) as ArrayLike<number>;
    if (property === "position")
        object.position.fromArray(values as number[]);
    else if (property === "quaternion")
        object.quaternion.fromArray(values as number[]).normalize();
    else if (property === "scale")
        object.scale.fromArray(values as number[]);
    else if (property === "morphTargetInfluences")
        (object as Mesh).morphTargetInfluences = Array.from(values);
}
