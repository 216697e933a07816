import {
    DoubleSide, Mesh, MeshDepthMaterial, OrthographicCamera, PlaneGeometry, Scene, ShaderMaterial,
    WebGLRenderTarget, type WebGLRenderer,
} from "three";
import type { Published } from "./published";

const size = 256;

const onGround = `
varying vec2 place;
void main() {
    place = vec2(uv.x, 1.0 - uv.y);
    gl_Position = projectionMatrix * modelViewMatrix * vec4(position, 1.0);
}`;

const wholePicture = `
varying vec2 place;
void main() {
    place = uv;
    gl_Position = vec4(position.xy, 0.0, 1.0);
}`;

/** Nine weighted neighbours along one direction. */
const blurred = `
uniform sampler2D picture;
uniform vec2 way;
varying vec2 place;
void main() {
    float sum = 0.0;
    for (int i = -4; i <= 4; ++i)
        sum += texture2D(picture, place + float(i) * way).r * exp(-float(i * i) / 8.0);
    gl_FragColor = vec4(sum / 5.0, 0.0, 0.0, 1.0);
}`;

const darkened = `
uniform sampler2D picture;
varying vec2 place;
void main() {
    vec2 way = place * 2.0 - 1.0;
    float edge = 1.0 - smoothstep(0.6, 1.0, length(way));
    float closeness = min(texture2D(picture, place).r, 1.0);
    gl_FragColor = vec4(0.0, 0.0, 0.0, closeness * closeness * 0.7 * edge);
}`;

/** The invisible ground below a scene without floor: darker where something is close above it. */
export class Ground {
    readonly surface: Mesh;
    private readonly camera: OrthographicCamera;
    private readonly targets = [0, 1].map(() => new WebGLRenderTarget(size, size));
    /** Brighter where something is nearer. */
    private readonly closeness = new MeshDepthMaterial({ side: DoubleSide });
    private readonly blur: Mesh<PlaneGeometry, ShaderMaterial>;
    private readonly blurScene = new Scene();

    constructor({ height, centre, radius }: NonNullable<Published["ground"]>) {
        const extent = radius * 1.6;
        this.surface = new Mesh(new PlaneGeometry(2, 2), new ShaderMaterial({
            uniforms: { picture: { value: this.targets[0]?.texture } },
            vertexShader: onGround, fragmentShader: darkened, transparent: true, depthWrite: false,
        }));
        this.surface.rotation.x = -Math.PI / 2;
        this.surface.scale.setScalar(extent);
        this.surface.position.set(centre[0], height, centre[2]);
        this.surface.renderOrder = -1;
        this.surface.raycast = () => {};
        // Looks up from below.
        this.camera = new OrthographicCamera(-extent, extent, extent, -extent, -radius * 0.02,
                                             radius * 0.7);
        this.camera.rotation.x = Math.PI / 2;
        this.camera.position.copy(this.surface.position);
        this.camera.updateMatrixWorld();
        this.blur = new Mesh(new PlaneGeometry(2, 2), new ShaderMaterial({
            uniforms: { picture: { value: null }, way: { value: [0, 0] } },
            vertexShader: wholePicture, fragmentShader: blurred, depthTest: false,
        }));
        this.blur.frustumCulled = false;
        this.blurScene.add(this.blur);
    }

    /** Looks again at what stands above it. */
    update(renderer: WebGLRenderer, scene: Scene): void {
        const [near, other] = this.targets;
        if (!near || !other)
            return;
        const { background, environment } = scene;
        scene.background = scene.environment = null;
        scene.overrideMaterial = this.closeness;
        this.surface.visible = false;
        renderer.setRenderTarget(near);
        renderer.clear();
        renderer.render(scene, this.camera);
        this.surface.visible = true;
        scene.overrideMaterial = null;
        scene.background = background;
        scene.environment = environment;
        for (const spread of [3, 1.2]) {
            this.pass(renderer, near, other, [spread / size, 0]);
            this.pass(renderer, other, near, [0, spread / size]);
        }
        renderer.setRenderTarget(null);
    }

    private pass(renderer: WebGLRenderer, from: WebGLRenderTarget, to: WebGLRenderTarget,
                 way: [number, number]): void {
        this.blur.material.uniforms.picture!.value = from.texture;
        this.blur.material.uniforms.way!.value = way;
        renderer.setRenderTarget(to);
        renderer.clear();
        renderer.render(this.blurScene, this.camera);
    }
}
