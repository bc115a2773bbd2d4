// Unpacks a WOFF 1.0 font into the plain font it was packed from: node woff2ttf.js <in.woff> <out.ttf>
'use strict';

const fs = require('fs');
const zlib = require('zlib');

const packedHeaderSize = 44;
const packedEntrySize = 20;
const plainHeaderSize = 12;
const plainEntrySize = 16;

const padding = (size) => (4 - size % 4) % 4;

function readTable(woff, entry) {
    const start = woff.readUInt32BE(entry + 4);
    const packedSize = woff.readUInt32BE(entry + 8);
    const size = woff.readUInt32BE(entry + 12);
    const packed = woff.subarray(start, start + packedSize);
    const data = packedSize < size ? zlib.inflateSync(packed) : packed;
    if (data.length !== size)
        throw new Error('a table has the wrong size');
    return { tag: woff.subarray(entry, entry + 4), checksum: woff.readUInt32BE(entry + 16), data };
}

function readTables(woff) {
    if (woff.toString('latin1', 0, 4) !== 'wOFF')
        throw new Error('this is not a WOFF file');
    const count = woff.readUInt16BE(12);
    return Array.from({ length: count }, (_, i) => readTable(woff, packedHeaderSize + i * packedEntrySize));
}

function plainHeader(flavor, count) {
    const header = Buffer.alloc(plainHeaderSize);
    const exponent = Math.floor(Math.log2(count));
    const searchRange = plainEntrySize << exponent;
    header.writeUInt32BE(flavor, 0);
    header.writeUInt16BE(count, 4);
    header.writeUInt16BE(searchRange, 6);
    header.writeUInt16BE(exponent, 8);
    header.writeUInt16BE(count * plainEntrySize - searchRange, 10);
    return header;
}

function unpack(woff) {
    const tables = readTables(woff);
    const entries = tables.map(() => Buffer.alloc(plainEntrySize));
    const parts = [plainHeader(woff.readUInt32BE(4), tables.length), ...entries];
    let place = plainHeaderSize + tables.length * plainEntrySize;
    tables.forEach((table, i) => {
        table.tag.copy(entries[i], 0);
        entries[i].writeUInt32BE(table.checksum, 4);
        entries[i].writeUInt32BE(place, 8);
        entries[i].writeUInt32BE(table.data.length, 12);
        parts.push(table.data, Buffer.alloc(padding(table.data.length)));
        place += table.data.length + padding(table.data.length);
    });
    return Buffer.concat(parts);
}

const [, , input, output] = process.argv;
const partial = `${output}.part`;
fs.writeFileSync(partial, unpack(fs.readFileSync(input)));
fs.renameSync(partial, output);
