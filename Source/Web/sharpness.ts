/** Pictures of something that moves should not take longer than this, in ms. */
const wanted = 40;
/** When nothing has changed for this long, in ms, it is calm. */
const calm = 200;
const lowest = 0.4;
/** Of the first picture, which is to be there soon. */
const first = 0.25;
/** More pixels make up for edges that are not smoothed. */
const smoothing = 1.4;

/**
 * How many pixels of the picture there are for each of the page. While pictures follow each other
 * there are fewer where they would be late; when all is calm, as many as the screen has.
 */
export class Sharpness {
    private moving = 1;
    private isMoving = true;
    private isFirst = true;
    private last = 0;
    private timer = 0;
    private late = 0;

    constructor(private readonly isSmooth: boolean, private readonly redraw: () => void) {}

    get ratio(): number {
        const { best } = this;
        if (this.isFirst)
            return first;
        return this.isMoving ? Math.max(best * this.moving, Math.min(best, lowest)) : best;
    }

    /** How long a sharp picture takes, in ms; undefined while it is found out. */
    set measured(time: number | undefined) {
        clearTimeout(this.timer);
        this.timer = 0;
        this.isMoving = false;
        this.isFirst = false;
        this.last = 0;
        if (time !== undefined)
            this.moving = Math.min(1, Math.sqrt(wanted / time));
    }

    /** A picture is about to be drawn; true when the ratio is another one than before. */
    next(time: number): boolean {
        const before = this.ratio;
        const past = time - this.last;
        const follows = this.last !== 0;
        this.last = time;
        if (follows)
            this.isMoving = past < calm + 100;
        if (this.isMoving && follows)
            this.learn(past);
        clearTimeout(this.timer);
        this.timer = window.setTimeout(() => this.rest(), calm);
        return this.ratio !== before;
    }

    private rest(): void {
        this.timer = 0;
        const before = this.ratio;
        this.isMoving = false;
        this.last = 0;
        if (this.ratio !== before)
            this.redraw();
    }

    private learn(past: number): void {
        this.late = past > wanted * 1.3 ? this.late + 1 : past < wanted / 1.8 ? this.late - 0.1 : this.late;
        if (this.late >= 3)
            this.moving *= 0.8;
        else if (this.late <= -1)
            this.moving = Math.min(this.moving * 1.25, 1);
        else
            return;
        this.late = 0;
    }

    private get best(): number {
        return Math.min(window.devicePixelRatio || 1, 2) * (this.isSmooth ? 1 : smoothing);
    }
}
