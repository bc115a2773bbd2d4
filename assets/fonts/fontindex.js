// Lists the names under which fonts can be asked for: node fontindex.js <out> <font>...
// One line for each font: its file name and its family names, separated by tabs.
'use strict';

const fs = require('fs');
const path = require('path');

// Family, typographic family, and the family of widths and slopes.
const familyIds = [1, 16, 21];
const macintosh = 1;

function findTable(font, tag) {
    const count = font.readUInt16BE(4);
    for (let entry = 12; entry < 12 + 16 * count; entry += 16) {
        if (font.toString('latin1', entry, entry + 4) === tag)
            return font.readUInt32BE(entry + 8);
    }
    throw new Error('there is no table of names');
}

function textOf(bytes, platform) {
    return platform === macintosh ? bytes.toString('latin1') : Buffer.from(bytes).swap16().toString('utf16le');
}

function familyNames(font) {
    const table = findTable(font, 'name');
    const count = font.readUInt16BE(table + 2);
    const texts = table + font.readUInt16BE(table + 4);
    const names = new Set();
    for (let record = table + 6; record < table + 6 + 12 * count; record += 12) {
        const field = (i) => font.readUInt16BE(record + 2 * i);
        const start = texts + field(5);
        if (familyIds.includes(field(3)))
            names.add(textOf(font.subarray(start, start + field(4)), field(0)));
    }
    return [...names];
}

const [, , output, ...fonts] = process.argv;
const lines = fonts.map((file) => [path.basename(file), ...familyNames(fs.readFileSync(file))].join('\t'));
fs.writeFileSync(output, `${lines.join('\n')}\n`);
