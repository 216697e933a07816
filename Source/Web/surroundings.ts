import {
    DataTexture, EquirectangularReflectionMapping, HalfFloatType, LinearFilter,
    LinearSRGBColorSpace, RGBAFormat, SRGBColorSpace, type Scene, type Texture,
} from "three";
import { HDRLoader } from "three/addons/loaders/HDRLoader.js";
import { lightCubeOf } from "./lightCube";
import type { Lighting, Published } from "./published";
import type { Source } from "./source";
import type { States } from "./states";

interface Ready {
    light: Texture;
    background: Texture;
}

/** What lights the scene from all sides, and what is seen behind it. */
export class Surroundings {
    private readonly pictures = new Map<number, Promise<DataTexture>>();
    private readonly ready = new Map<number, Ready>();

    constructor(private readonly published: Published, private readonly source: Source,
                private readonly states: States, private readonly scene: Scene,
                private readonly behind: Scene) {}

    /** Loads the picture of the present lighting, and makes it what the scene shows. */
    async apply(): Promise<void> {
        const wanted = this.present();
        if (wanted === undefined)
            return;
        await this.prepare(wanted);
        if (this.present() === wanted)
            this.show(wanted);
    }

    /** Shows the present lighting if it is there; true then. */
    applyNow(): boolean {
        const wanted = this.present();
        if (wanted === undefined)
            return true;
        return this.ready.has(wanted) && this.show(wanted);
    }

    /** So that later changes show at once. */
    async prepareAll(): Promise<void> {
        for (const index of this.published.lightings.keys())
            await this.prepare(index);
    }

    private present(): number | undefined {
        const { lighting, lightings } = this.published;
        const index = typeof lighting === "number" ? lighting
            : lighting.lightings[String(this.states.value(lighting.slot))];
        return index !== undefined && lightings[index] ? index : undefined;
    }

    private async prepare(index: number): Promise<void> {
        const lighting = this.published.lightings[index];
        if (!lighting || this.ready.has(index))
            return;
        let loading = this.pictures.get(index);
        if (!loading) {
            loading = this.load(lighting);
            this.pictures.set(index, loading);
        }
        const picture = await loading;
        if (this.ready.has(index))
            return;
        this.ready.set(index, {
            light: lightCubeOf(picture),
            background: lighting.seen ? picture : gradient(lighting.backdrop),
        });
    }

    private async load(lighting: Lighting): Promise<DataTexture> {
        const loader = new HDRLoader().setDataType(HalfFloatType);
        const { data, width, height } = loader.parse(await this.source.bytes(lighting.picture));
        const texture = new DataTexture(data as Uint16Array<ArrayBuffer>, width, height, RGBAFormat,
                                        HalfFloatType);
        texture.mapping = EquirectangularReflectionMapping;
        texture.colorSpace = LinearSRGBColorSpace;
        texture.minFilter = texture.magFilter = LinearFilter;
        texture.flipY = true;
        texture.needsUpdate = true;
        return texture;
    }

    private show(index: number): boolean {
        const ready = this.ready.get(index);
        if (!ready)
            return false;
        this.scene.environment = ready.light;
        this.behind.background = ready.background;
        return true;
    }
}

/** From the lower to the upper edge of the view, even in light. */
function gradient([upper, lower]: [string, string]): DataTexture {
    const rows = 64;
    const data = new Uint8Array(rows * 4);
    const [high, low] = [linearOf(upper), linearOf(lower)];
    for (let row = 0; row < rows; ++row) {
        const share = row / (rows - 1);
        for (let channel = 0; channel < 3; ++channel) {
            const light = low[channel]! + (high[channel]! - low[channel]!) * share;
            data[row * 4 + channel] = Math.round(255 * toSrgb(light));
        }
        data[row * 4 + 3] = 255;
    }
    const texture = new DataTexture(data, 1, rows, RGBAFormat);
    texture.colorSpace = SRGBColorSpace;
    texture.minFilter = texture.magFilter = LinearFilter;
    texture.needsUpdate = true;
    return texture;
}

function linearOf(colour: string): number[] {
    return [1, 3, 5].map(start => {
        const value = parseInt(colour.slice(start, start + 2), 16) / 255;
        return value <= 0.04045 ? value / 12.92 : ((value + 0.055) / 1.055) ** 2.4;
    });
}

function toSrgb(light: number): number {
    return light <= 0.0031308 ? light * 12.92 : 1.055 * light ** (1 / 2.4) - 0.055;
}
