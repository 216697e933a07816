import type { View } from "./view";

const step = 0.12;
const pixels = 40;

/** Moves the view by the keys of the 3D picture; true when the key means something there. */
export function pressInScene(event: KeyboardEvent, view: View, home: () => void): boolean {
    if (event.ctrlKey || event.altKey || event.metaKey)
        return false;
    const ways: Record<string, [number, number]> = {
        ArrowLeft: [1, 0], ArrowRight: [-1, 0], ArrowUp: [0, 1], ArrowDown: [0, -1],
    };
    const way = ways[event.key];
    if (way && event.shiftKey)
        view.pan(-way[0] * pixels, way[1] * pixels);
    else if (way)
        view.orbit(way[0] * step, way[1] * step, 1);
    else if (event.key === "+" || event.key === "=")
        view.orbit(0, 0, 1.15);
    else if (event.key === "-")
        view.orbit(0, 0, 1 / 1.15);
    else if (event.key === "Home")
        home();
    else
        return false;
    return true;
}
