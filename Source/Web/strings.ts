import type { Kind, Language } from "./published";
import type { Problem } from "./source";

/** All texts of the page that do not come from the scene. */
export interface Strings {
    loading: string;
    sets: string;
    variants: string;
    views: string;
    search: string;
    otherSets: string;
    viewpoints: string;
    clips: string;
    kinds: Record<Kind, string>;
    tools: string;
    share: string;
    linkCopied: string;
    linkNotCopied: string;
    reset: string;
    help: string;
    close: string;
    dark: string;
    light: string;
    morePanel: string;
    lessPanel: string;
    scene: string;
    sceneHint: string;
    skip: string;
    settings: string;
    mouse: [string, string][];
    sceneKeys: [string, string][];
    setKeys: string;
    browserKeys: string;
    problems: Record<Problem, string>;
    retry: string;
    loaded(done: string, all: string): string;
    found(count: number): string;
    nothingFound(text: string): string;
    selected(name: string): string;
    unknownSet(name: string): string;
    unknownOption(name: string): string;
    key(sequence: string): string;
}

const english: Strings = {
    loading: "Loading the scene …",
    sets: "Sets",
    variants: "Variants",
    views: "Views",
    search: "Search sets and variants",
    otherSets: "Other sets",
    viewpoints: "Viewpoints",
    clips: "Animations",
    kinds: {
        node: "Parts", material: "Materials", light: "Lights", overlay: "Overlays",
        transform: "Positions",
    },
    tools: "Tools",
    share: "Share",
    linkCopied: "The link is copied.",
    linkNotCopied: "The browser does not allow copying. The link is in the address bar.",
    reset: "As at the start",
    help: "Keys and help",
    close: "Close",
    dark: "Dark colours",
    light: "Light colours",
    morePanel: "Show more of the panel",
    lessPanel: "Show less of the panel",
    scene: "3D view",
    sceneHint: "Arrow keys turn the view, plus and minus come closer and go away.",
    skip: "Skip to the sets",
    settings: "Sets and variants",
    mouse: [
        ["Drag", "turn"], ["Right button, or two fingers", "move"], ["Wheel, or pinch", "zoom"],
    ],
    sceneKeys: [
        ["Arrow keys", "turn, when the 3D view has the focus"], ["Shift + arrow keys", "move"],
        ["+ and -", "closer and away"], ["Home", "back to where the view was"], ["/", "search"],
    ],
    setKeys: "Keys of this scene",
    browserKeys: "Browsers keep some keys for themselves, such as Ctrl+N, Ctrl+T, Ctrl+W and, "
        + "on some, Ctrl+1 to Ctrl+9 or F11.",
    problems: {
        needsServer: "Browsers do not load a scene from a folder on the disk. Put the folder on a web "
            + "server, or start one in it, for example with \"python3 -m http.server\", and open "
            + "http://localhost:8000. To open the page from the disk, publish it as a single file.",
        missing: "A file of the page is missing or could not be loaded:",
        wrongFormat: "The description of the scene is damaged, or of another version than this page.",
        noWebGL: "This browser cannot show 3D pictures (WebGL 2 is missing or switched off).",
        broken: "The scene could not be read:",
    },
    retry: "Try again",
    loaded: (done, all) => `${done} of ${all} MB`,
    found: count => count === 1 ? "1 result" : `${count} results`,
    nothingFound: text => `Nothing is called “${text}”.`,
    selected: name => `Selected: ${name}`,
    unknownSet: name => `The link asks for the set “${name}”, which this page does not have.`,
    unknownOption: name => `The link asks for “${name}”, which this page does not have.`,
    key: sequence => `Key: ${sequence}`,
};

const german: Strings = {
    loading: "Szene wird geladen …",
    sets: "Sets",
    variants: "Varianten",
    views: "Ansichten",
    search: "Sets und Varianten suchen",
    otherSets: "Weitere Sets",
    viewpoints: "Blickpunkte",
    clips: "Animationen",
    kinds: {
        node: "Teile", material: "Materialien", light: "Lichter", overlay: "Einblendungen",
        transform: "Stellungen",
    },
    tools: "Werkzeuge",
    share: "Teilen",
    linkCopied: "Der Link ist kopiert.",
    linkNotCopied: "Der Browser erlaubt das Kopieren nicht. Der Link steht in der Adresszeile.",
    reset: "Wie am Anfang",
    help: "Tasten und Hilfe",
    close: "Schließen",
    dark: "Dunkle Farben",
    light: "Helle Farben",
    morePanel: "Mehr von der Leiste zeigen",
    lessPanel: "Weniger von der Leiste zeigen",
    scene: "3D-Ansicht",
    sceneHint: "Pfeiltasten drehen die Ansicht, Plus und Minus gehen näher heran und weiter weg.",
    skip: "Zu den Sets springen",
    settings: "Sets und Varianten",
    mouse: [
        ["Ziehen", "drehen"], ["Rechte Taste oder zwei Finger", "verschieben"],
        ["Mausrad oder zwei Finger spreizen", "vergrößern"],
    ],
    sceneKeys: [
        ["Pfeiltasten", "drehen, wenn die 3D-Ansicht den Fokus hat"],
        ["Umschalt + Pfeiltasten", "verschieben"], ["+ und -", "näher und weiter weg"],
        ["Pos1", "zurück zur letzten Ansicht"], ["/", "suchen"],
    ],
    setKeys: "Tasten dieser Szene",
    browserKeys: "Manche Tasten behalten Browser für sich, etwa Strg+N, Strg+T, Strg+W und "
        + "teilweise Strg+1 bis Strg+9 oder F11.",
    problems: {
        needsServer: "Browser laden keine Szene aus einem Ordner auf der Festplatte. Stellen Sie den "
            + "Ordner auf einen Webserver, oder starten Sie darin einen, etwa mit "
            + "„python3 -m http.server“, und öffnen Sie http://localhost:8000. Damit sich die "
            + "Seite von der Festplatte öffnen lässt, veröffentlichen Sie sie als einzelne Datei.",
        missing: "Eine Datei der Seite fehlt oder ließ sich nicht laden:",
        wrongFormat: "Die Beschreibung der Szene ist beschädigt oder gehört zu einer anderen Version "
            + "der Seite.",
        noWebGL: "Dieser Browser kann keine 3D-Bilder zeigen (WebGL 2 fehlt oder ist abgeschaltet).",
        broken: "Die Szene ließ sich nicht lesen:",
    },
    retry: "Noch einmal versuchen",
    loaded: (done, all) => `${done} von ${all} MB`,
    found: count => count === 1 ? "1 Treffer" : `${count} Treffer`,
    nothingFound: text => `Nichts heißt „${text}“.`,
    selected: name => `Gewählt: ${name}`,
    unknownSet: name => `Der Link nennt das Set „${name}“, das es auf dieser Seite nicht gibt.`,
    unknownOption: name => `Der Link nennt „${name}“, das es auf dieser Seite nicht gibt.`,
    key: sequence => `Taste: ${sequence}`,
};

const keyNames: Record<string, string> = {
    Ctrl: "Strg", Shift: "Umschalt", Del: "Entf", Ins: "Einfg", Home: "Pos1", End: "Ende",
    PgUp: "Bild↑", PgDown: "Bild↓", Space: "Leertaste", Return: "Eingabe",
};

export function stringsOf(language: Language): Strings {
    return language === "de" ? german : english;
}

/** A key sequence as people of that language read it on their keyboards. */
export function readableKey(sequence: string, language: Language): string {
    if (language !== "de")
        return sequence;
    return sequence.split("+").map(part => keyNames[part] ?? part).join("+");
}
