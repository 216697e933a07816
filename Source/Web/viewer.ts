import { Bindings } from "./bindings";
import type { Choice } from "./choices";
import { ClippingView } from "./clippingView";
import { Ground } from "./ground";
import { Lamps } from "./lamps";
import { Poses } from "./poses";
import type { Camera, Clipping, Published, SceneRecord, Step } from "./published";
import { recordOf } from "./record";
import { LoadedScene } from "./scene";
import type { Source } from "./source";
import { Stage } from "./stage";
import { States } from "./states";
import { Surroundings } from "./surroundings";
import { View } from "./view";

/** Where one picture takes longer, in ms, shadows would make the page stand still. */
const slow = 250;

interface Loaded {
    scene: LoadedScene;
    bindings: Bindings;
    lamps: Lamps;
    poses: Poses;
    clipping: ClippingView;
}

/** The published scene: what it shows, and the picture of it. */
export class Viewer {
    readonly states: States;
    readonly view: View;
    readonly stage: Stage;
    private readonly surroundings: Surroundings;
    private loaded?: Loaded;
    /** Clips that were started before the scene was there, as by a link. */
    private readonly waiting = new Set<number>();
    /** Where the camera was before it was moved by hand. */
    private home: Camera;

    /** Is called after each change of what is shown. */
    onChange = (): void => {};

    constructor(readonly published: Published, source: Source,
                canvas: HTMLCanvasElement) {
        this.states = new States(published);
        this.home = published.camera;
        this.view = new View(canvas, published);
        this.stage = new Stage(canvas, this.view, published.exposure);
        this.surroundings = new Surroundings(published, source, this.states, this.stage.scene,
                                             this.stage.layers.behind);
    }

    /** Resolves when the first picture is there. */
    async open(data: Promise<ArrayBuffer>): Promise<void> {
        const light = this.surroundings.apply();
        const { published, states, stage } = this;
        const scene = await LoadedScene.load(await data, published);
        const lamps = new Lamps(scene, published.lightFactor);
        const poses = new Poses(scene, published.clips);
        poses.onEnd = () => this.onChange();
        const bindings = new Bindings(published, scene, states, lamps, poses);
        const clipping = new ClippingView(published);
        stage.scene.add(scene.root);
        stage.layers.fill(published, scene);
        this.loaded = { scene, bindings, lamps, poses, clipping };
        this.waiting.forEach(clip => poses.start(clip));
        states.takeChanged();
        bindings.applyAll();
        clipping.show(this.clipping());
        scene.showBothSides(clipping.isActive);
        await light;
        const ground = published.ground && new Ground(published.ground);
        stage.show({ lamps, poses, clipping, ground });
        await stage.drawn();
        await stage.finished();
    }

    /** What the first picture does without. */
    async complete(): Promise<void> {
        if (await this.stage.sharpen() < slow) {
            this.loaded?.scene.takeShadows();
            await this.stage.completeLights(radiusOf(this.published));
            await this.stage.sharpen();
        }
        await this.surroundings.prepareAll();
    }

    choose(choice: Choice): void {
        this.run("set" in choice ? choice.set.step : choice.option.step);
    }

    run(step: Step): void {
        const { viewpoint, clips } = this.states.run(step);
        this.follow();
        const camera = this.published.viewpoints[viewpoint ?? -1];
        if (camera)
            this.fly(camera);
        clips.forEach(clip => this.play(clip));
        this.onChange();
    }

    fly(camera: Camera): void {
        this.home = camera;
        this.view.fly(camera);
        this.stage.invalidate();
    }

    flyHome(): void {
        this.fly(this.home);
    }

    play(clip: number): void {
        if (this.loaded)
            this.loaded.poses.start(clip);
        else
            this.waiting.add(clip);
        this.stage.change();
        this.onChange();
    }

    stop(clip: number): void {
        this.waiting.delete(clip);
        this.loaded?.poses.stop(clip);
        this.stage.change();
        this.onChange();
    }

    isPlaying(clip: number): boolean {
        return this.loaded?.poses.isPlaying(clip) ?? this.waiting.has(clip);
    }

    /** The scene as it was opened. */
    reset(): void {
        this.states.reset();
        this.waiting.clear();
        this.loaded?.poses.stopAll();
        this.follow();
        this.fly(this.published.camera);
        this.onChange();
    }

    /** What is drawn, with all clips at rest; a flight of the camera ends at once. */
    record(): SceneRecord {
        if (!this.loaded)
            throw new Error("The scene is not loaded yet.");
        const { scene, lamps, poses } = this.loaded;
        this.view.arrive();
        this.stage.invalidate();
        return poses.atRest(() => {
            this.stage.updateWorld();
            return recordOf(this.published, scene, lamps, this.view, this.clipping());
        });
    }

    private clipping(): Clipping {
        const { clippings, clipping } = this.published;
        return clippings[this.states.value(clipping)] ?? clippings[0] ?? noClipping;
    }

    private follow(): void {
        const { loaded } = this;
        if (!loaded)
            return;
        loaded.bindings.apply(this.states.takeChanged());
        loaded.clipping.show(this.clipping());
        loaded.scene.showBothSides(loaded.clipping.isActive);
        if (!this.surroundings.applyNow())
            this.surroundings.apply().then(() => this.stage.change(), () => {});
        this.stage.change();
    }
}

const noClipping: Clipping = {
    enabled: false, position: [0, 0, 0], normal: [0, 1, 0], invert: false, hideScene: false,
    contourWidth: 1,
};

function radiusOf({ box }: Published): number {
    return Math.hypot(...box.max.map((high, axis) => high - (box.min[axis] ?? 0))) / 2;
}
