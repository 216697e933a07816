/** A picture that is drawn this long, in ms, is too slow for something that moves. */
const slow = 50;
const quick = 24;
const calm = 200;

/**
 * How many pixels of the picture there are for each of the page. While pictures follow each other
 * there are fewer where they would be late; when all is calm, as many as the screen has.
 */
export class Sharpness {
    private moving = Sharpness.best;
    private isMoving = false;
    private last = 0;
    private timer = 0;
    private late = 0;

    constructor(private readonly redraw: () => void) {}

    get ratio(): number {
        return this.isMoving ? Math.min(this.moving, Sharpness.best) : Sharpness.best;
    }

    /** A picture is about to be drawn; true when the ratio is another one than before. */
    next(time: number): boolean {
        const before = this.ratio;
        const past = time - this.last;
        this.last = time;
        this.isMoving = past < calm + 100 && this.timer !== 0;
        if (this.isMoving)
            this.learn(past);
        clearTimeout(this.timer);
        this.timer = window.setTimeout(() => this.rest(), calm);
        return this.ratio !== before;
    }

    private rest(): void {
        this.timer = 0;
        if (this.isMoving && this.ratio !== Sharpness.best) {
            this.isMoving = false;
            this.last = 0;
            this.redraw();
        }
        this.isMoving = false;
    }

    private learn(past: number): void {
        this.late = past > slow ? this.late + 1 : past < quick ? this.late - 0.1 : this.late;
        if (this.late >= 3)
            this.moving = Math.max(this.moving * 0.75, 0.4);
        else if (this.late <= -3)
            this.moving = Math.min(this.moving * 1.2, Sharpness.best);
        else
            return;
        this.late = 0;
    }

    private static get best(): number {
        return Math.min(window.devicePixelRatio || 1, 2);
    }
}
