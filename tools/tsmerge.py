#!/usr/bin/env python3
# Three-way merge of Qt .ts files by (context, source, comment), so parallel branches that each
# add translations merge without conflicts. .gitattributes names it for the .ts files; enable it in
# a clone with:  git config merge.tsmerge.driver "python3 tools/tsmerge.py %O %A %B %A"
# usage: tsmerge.py BASE OURS THEIRS OUT
import sys, xml.etree.ElementTree as ET
def load(p):
    t=ET.parse(p); r=t.getroot(); d={}
    order=[]
    for c in r.findall('context'):
        name=c.findtext('name')
        if name not in d: d[name]={}; order.append(name)
        for m in c.findall('message'):
            key=(m.findtext('source'), m.findtext('comment'))
            d[name][key]=m
    return t,d,order
def s(m): return ET.tostring(m) if m is not None else None
base=load(sys.argv[1])[1]; ot,od,oorder=load(sys.argv[2]); tt,td,torder=load(sys.argv[3])
res={}; order=list(oorder)+[n for n in torder if n not in oorder]
for ctx in order:
    b=base.get(ctx,{}); o=od.get(ctx,{}); t=td.get(ctx,{})
    keys=list(o.keys())+[k for k in t.keys() if k not in o]
    out=[]
    for k in keys:
        bm,om,tm=b.get(k),o.get(k),t.get(k)
        if om is None:
            if bm is not None and s(bm)==s(tm): continue  # deleted by ours
            out.append(tm); continue
        if tm is None:
            if bm is not None and s(bm)==s(om): continue  # deleted by theirs
            out.append(om); continue
        if s(om)==s(tm) or s(tm)==s(bm): out.append(om)
        else: out.append(tm)
    res[ctx]=out
root=ot.getroot()
for c in list(root.findall('context')): root.remove(c)
for ctx in sorted(order):
    if not res[ctx]: continue
    c=ET.SubElement(root,'context'); n=ET.SubElement(c,'name'); n.text=ctx
    for m in res[ctx]: c.append(m)
ET.indent(ot, space='    ')
with open(sys.argv[4],'wb') as f:
    f.write(b'<?xml version="1.0" encoding="utf-8"?>\n<!DOCTYPE TS>\n')
    ot.write(f, encoding='utf-8', xml_declaration=False)
    f.write(b'\n')
