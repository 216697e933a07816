import { NeutralToneMapping, PCFShadowMap, Scene, Vector2, WebGLRenderer } from "three";
import type { ClippingView } from "./clippingView";
import type { Ground } from "./ground";
import type { Lamps } from "./lamps";
import { Layers } from "./layers";
import type { Poses } from "./poses";
import { isShown } from "./record";
import { Sharpness } from "./sharpness";
import { SourceError } from "./source";
import type { View } from "./view";

/** How many lights cast shadows. */
const shadows = 5;

export interface Contents {
    lamps: Lamps;
    poses: Poses;
    clipping: ClippingView;
    ground?: Ground;
}

/** Draws a picture when something has changed, and only then. */
export class Stage {
    readonly renderer: WebGLRenderer;
    readonly scene = new Scene();
    readonly layers = new Layers();
    /** Of the clipping plane. */
    private readonly marks = new Scene();
    private readonly sharpness: Sharpness;
    private contents?: Contents;
    private frame = 0;
    private before = 0;
    /** Something has moved, so that shadows and contour have to follow. */
    private isMoved = true;
    private readonly waiting: (() => void)[] = [];
    /** Drawn pictures since the start. */
    pictures = 0;

    constructor(private readonly canvas: HTMLCanvasElement, private readonly view: View,
                exposure: number) {
        this.renderer = rendererFor(canvas);
        const { antialias } = this.renderer.getContextAttributes();
        this.sharpness = new Sharpness(antialias ?? false, () => this.invalidate());
        this.renderer.toneMapping = NeutralToneMapping;
        this.renderer.toneMappingExposure = 2 ** exposure;
        this.renderer.autoClear = false;
        this.renderer.debug.checkShaderErrors = false; // Asking for errors waits for the compiler.
        this.renderer.shadowMap.autoUpdate = false;
        new ResizeObserver(() => this.resize()).observe(canvas.parentElement ?? canvas);
        view.onMove = () => this.invalidate();
    }

    show(contents: Contents): void {
        this.contents = contents;
        this.scene.add(contents.lamps.group);
        this.marks.add(contents.clipping.group);
        if (contents.ground)
            this.scene.add(contents.ground.surface);
        this.scene.matrixWorldAutoUpdate = false;
        this.layers.behind.matrixWorldAutoUpdate = false;
        this.layers.inFront.matrixWorldAutoUpdate = false;
        this.resize();
        this.compile(contents);
    }

    /** Lets the shaders of all that is drawn be compiled side by side. */
    private compile({ clipping }: Contents): void {
        this.updateWorld();
        this.renderer.clippingPlanes = clipping.planes;
        this.renderer.compile(this.scene, this.view.camera);
        this.renderer.clippingPlanes = [];
    }

    /** All lights may shine, and the strongest cast shadows from now on. */
    async completeLights(radius: number): Promise<void> {
        const { contents, renderer, scene } = this;
        if (!contents)
            return;
        contents.lamps.includeAll();
        if (contents.lamps.castShadows(shadows, radius) > 0) {
            renderer.shadowMap.enabled = true;
            renderer.shadowMap.type = PCFShadowMap;
        }
        this.updateWorld();
        renderer.clippingPlanes = contents.clipping.planes;
        const canWait = renderer.extensions.has("KHR_parallel_shader_compile");
        const compiled = canWait ? renderer.compileAsync(scene, this.view.camera) : undefined;
        renderer.clippingPlanes = [];
        await compiled;
        this.change();
    }

    /** Draws sharply, and learns how long that takes; in ms. */
    async sharpen(): Promise<number> {
        await this.finished();
        const start = performance.now();
        this.sharpness.measured = undefined;
        this.resize();
        await this.drawn();
        await this.finished();
        const time = performance.now() - start;
        this.sharpness.measured = time;
        return time;
    }

    /** Something else is to be seen: nodes, materials or lights. */
    change(): void {
        this.isMoved = true;
        this.invalidate();
    }

    /** A new picture is due. */
    invalidate(): void {
        if (!this.frame && this.contents)
            this.frame = requestAnimationFrame(time => this.next(time));
    }

    /** After the next picture. */
    drawn(): Promise<void> {
        return new Promise(resolve => {
            this.waiting.push(resolve);
            this.invalidate();
        });
    }

    /** When the pictures that were asked for so far are really there. */
    async finished(): Promise<void> {
        const gl = this.renderer.getContext() as WebGL2RenderingContext;
        const fence = gl.fenceSync(gl.SYNC_GPU_COMMANDS_COMPLETE, 0);
        gl.flush();
        while (fence && gl.clientWaitSync(fence, 0, 0) === gl.TIMEOUT_EXPIRED)
            await new Promise(resolve => setTimeout(resolve, 4));
        gl.deleteSync(fence);
    }

    /** World matrices and lights as they are drawn. */
    updateWorld(): void {
        if (!this.contents)
            return;
        this.scene.updateMatrixWorld();
        this.layers.behind.updateMatrixWorld();
        this.layers.inFront.updateMatrixWorld();
        this.contents.lamps.update(isShown);
    }

    private next(time: number): void {
        this.frame = 0;
        const seconds = Math.min((time - this.before) / 1000, 0.1);
        this.before = time;
        this.view.advance(seconds);
        const isPlaying = this.contents?.poses.advance(seconds) ?? false;
        this.isMoved ||= isPlaying;
        if (this.sharpness.next(time))
            this.resize();
        this.draw();
        if (isPlaying || this.view.isFlying)
            this.invalidate();
        this.waiting.splice(0).forEach(resolve => resolve());
    }

    private draw(): void {
        const { renderer, contents, view } = this;
        if (!contents)
            return;
        this.updateWorld();
        if (this.isMoved)
            this.follow(contents);
        renderer.clear();
        view.openPlanes();
        renderer.render(this.layers.behind, view.camera);
        renderer.clearDepth();
        view.updatePlanes();
        if (!contents.clipping.hidesScene) {
            renderer.clippingPlanes = contents.clipping.planes;
            renderer.render(this.scene, view.camera);
            renderer.clippingPlanes = [];
        }
        if (contents.clipping.isActive)
            renderer.render(this.marks, view.camera);
        for (const layer of this.layers.bits) {
            renderer.clearDepth();
            view.camera.layers.set(layer);
            renderer.render(this.layers.inFront, view.camera);
        }
        view.camera.layers.set(0);
        ++this.pictures;
    }

    private follow(contents: Contents): void {
        this.isMoved = false;
        this.renderer.shadowMap.needsUpdate = true;
        contents.clipping.cut(this.scene);
        this.renderer.clippingPlanes = contents.clipping.planes;
        contents.ground?.update(this.renderer, this.scene);
        this.renderer.clippingPlanes = [];
    }

    private resize(): void {
        const { parentElement } = this.canvas;
        const width = Math.max(parentElement?.clientWidth ?? 1, 1);
        const height = Math.max(parentElement?.clientHeight ?? 1, 1);
        const ratio = this.sharpness.ratio;
        const { renderer } = this;
        const size = renderer.getSize(new Vector2());
        if (size.x !== width || size.y !== height || renderer.getPixelRatio() !== ratio) {
            renderer.setPixelRatio(ratio);
            renderer.setSize(width, height, false);
            this.contents?.clipping.resize(new Vector2(width, height));
            this.view.resize(width, height);
        }
        if (this.contents && !this.frame && this.pictures)
            this.draw();
    }
}

function rendererFor(canvas: HTMLCanvasElement): WebGLRenderer {
    try {
        const antialias = !isSoftware();
        return new WebGLRenderer({ canvas, antialias, powerPreference: "high-performance" });
    } catch {
        throw new SourceError("noWebGL");
    }
}

/** Without graphics hardware, smooth edges would take as long as all the rest. */
function isSoftware(): boolean {
    const gl = document.createElement("canvas").getContext("webgl2");
    const details = gl?.getExtension("WEBGL_debug_renderer_info");
    const name = String(gl?.getParameter(details ? details.UNMASKED_RENDERER_WEBGL : gl.RENDERER));
    gl?.getExtension("WEBGL_lose_context")?.loseContext();
    return /swiftshader|llvmpipe|softpipe|software|basic render/i.test(name);
}
