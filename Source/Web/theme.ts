const place = "qxTheme";

/** The chosen colours, else those of the system. */
export function isDark(): boolean {
    const chosen = document.documentElement.dataset.theme;
    return chosen ? chosen === "dark" : matchMedia("(prefers-color-scheme: dark)").matches;
}

export function setDark(dark: boolean): void {
    document.documentElement.dataset.theme = dark ? "dark" : "light";
    try {
        localStorage.setItem(place, dark ? "dark" : "light");
    } catch {
        // Pages without storage forget the choice.
    }
}

/** As people chose before. */
export function restoreTheme(): void {
    try {
        const chosen = localStorage.getItem(place);
        if (chosen === "dark" || chosen === "light")
            document.documentElement.dataset.theme = chosen;
    } catch {
        // As above.
    }
}
