// Describes the interfaces that an assembly declares of the component library, in the words of DescribeLibrary.cpp:
//   DescribeAssembly.exe ASSEMBLY
using System;
using System.Linq;
using System.Reflection;
using System.Runtime.InteropServices;

public static class DescribeAssembly
{
    private static string Simple(Type type, MarshalAsAttribute marshal)
    {
        if (type == typeof(void)) return "void";
        if (type == typeof(short)) return "short";
        if (type == typeof(int)) return "long";
        if (type == typeof(uint)) return "color";
        if (type == typeof(double)) return "double";
        if (type.IsEnum || type.IsInterface) return type.Name;
        if (marshal == null) throw new Exception("how " + type + " is handed over is not said");
        switch (marshal.Value)
        {
            case UnmanagedType.VariantBool: return "boolean";
            case UnmanagedType.BStr: return "string";
            case UnmanagedType.IDispatch: return "dispatch";
            case UnmanagedType.Struct: return "variant";
            default: throw new Exception(marshal.Value + " has no word");
        }
    }

    private static MarshalAsAttribute Marshalled(ICustomAttributeProvider where)
    {
        return (MarshalAsAttribute)where.GetCustomAttributes(typeof(MarshalAsAttribute), false).FirstOrDefault();
    }

    private static string Describe(ParameterInfo parameter)
    {
        Type type = parameter.ParameterType;
        string text = type.IsByRef ? Simple(type.GetElementType(), Marshalled(parameter)) + "*" : Simple(type, Marshalled(parameter));
        return parameter.IsOptional ? text + " or none" : text;
    }

    private static string Describe(MethodInfo method)
    {
        var number = (DispIdAttribute)method.GetCustomAttributes(typeof(DispIdAttribute), false).Single();
        string name = method.Name;
        // An index makes a method of a property's half in C#; its name tells.
        string kind = name.StartsWith("get_") ? "get " : name.StartsWith("set_") ? "put " : "";
        var all = method.GetParameters().Select(Describe);
        return "  " + number.Value + " " + kind + (kind == "" ? name : name.Substring(4)) + "(" + string.Join(", ", all) + "): " +
               Simple(method.ReturnType, Marshalled(method.ReturnTypeCustomAttributes));
    }

    public static void Main(string[] arguments)
    {
        var faces = Assembly.LoadFrom(arguments[0]).GetTypes().Where(type => type.IsInterface && type.IsImport);
        foreach (Type face in faces.OrderBy(type => type.MetadataToken))
        {
            var kind = (InterfaceTypeAttribute)face.GetCustomAttributes(typeof(InterfaceTypeAttribute), false).Single();
            Console.WriteLine(face.Name + " {" + face.GUID.ToString().ToUpperInvariant() + "} " +
                              (kind.Value == ComInterfaceType.InterfaceIsDual ? "dual" : "dispatch"));
            foreach (MethodInfo method in face.GetMethods().OrderBy(method => method.MetadataToken))
                Console.WriteLine(Describe(method));
        }
    }
}
