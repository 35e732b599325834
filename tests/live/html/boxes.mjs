// Compares the box of every object's element in a browser page with the object's record.

const textBox = 5, file = 12, lastKind = 13, ticker = 7, maxTickers = 3, invisible = 8;

// Objects that a template shows: known kinds, the first three tickers, no hidden fields.
function shownObjects(records) {
    let tickers = 0, index = 0;
    const shown = [];
    for (const object of records.objects) {
        if (object.kind === ticker && ++tickers > maxTickers)
            continue;
        const hidden = (object.kind === textBox || object.kind === file) && (object.objflags & invisible) !== 0;
        if (object.kind >= 1 && object.kind <= lastKind && !hidden)
            shown.push([`o${index}`, object]);
        ++index;
    }
    return shown;
}

export async function boxProblems(page, records) {
    const problems = [];
    for (const [id, object] of shownObjects(records)) {
        const element = await page.$(`#${id}`);
        const box = element && await element.evaluate((e) => {
            const { left, top, width, height } = e.getBoundingClientRect();
            return { left, top, width, height };
        });
        const wanted = { left: object.pleft, top: object.ptop, width: Math.max(object.pwidth, 0), height: Math.max(object.pheight, 0) };
        if (!box)
            problems.push(`box ${id}: no element`);
        else if (Object.keys(wanted).some((key) => Math.abs(wanted[key] - box[key]) > 1))
            problems.push(`box ${id}: ${JSON.stringify(box)} instead of ${JSON.stringify(wanted)}`);
    }
    return problems;
}
